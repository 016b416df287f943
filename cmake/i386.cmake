# Toolchain: the 32-bit ABI on an x86-64 host, by the host's own compiler.
set(CMAKE_C_FLAGS_INIT -m32)
set(CMAKE_CXX_FLAGS_INIT -m32)

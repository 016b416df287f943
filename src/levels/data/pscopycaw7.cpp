// Kernels of data movement: copy, move, zero, set.
#include "levels/data/pscopyca.h"

using namespace tarn;

void ownsCopy_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len) { walk(pDst, len, Identity{}, pSrc); }

// The standard function chooses the direction by the addresses, and a copy that may overlap leaves nothing to add to
// it.
void ownsMove_8u_W7(const Tarn8u* pSrc, Tarn8u* pDst, int len) { std::memmove(pDst, pSrc, static_cast<unsigned>(len)); }

void ownsZero_8u(Tarn8u* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn8u>{0}); }

void ownsSet_8u(Tarn8u val, Tarn8u* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn8u>{val}); }

void ownsSet_16u(Tarn16u val, Tarn16u* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn16u>{val}); }

void ownsSet_32s(Tarn32s val, Tarn32s* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn32s>{val}); }

void ownsSet_64s(Tarn64s val, Tarn64s* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn64s>{val}); }

void ownsSet_64sc(Tarn64sc val, Tarn64sc* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn64sc>{val}); }

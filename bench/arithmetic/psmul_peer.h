// Plain loops beside the products.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void mulLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len);
void mulLoop(const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int len);
void mulLoop(const Tarn32fc* a, const Tarn32fc* b, Tarn32fc* dst, int len);
void mulLoop(const Tarn64fc* a, const Tarn64fc* b, Tarn64fc* dst, int len);
void mulLoop(const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len, int s);
void mulLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len, int s);
void mulLoop(const Tarn16s* a, const Tarn16s* b, Tarn32s* dst, int len, int s);
void mulLoop(const Tarn16u* a, const Tarn16s* b, Tarn16s* dst, int len, int s);
void mulLoop(const Tarn16sc* a, const Tarn16sc* b, Tarn16sc* dst, int len, int s);
void mulLoop(const Tarn32s* a, const Tarn32s* b, Tarn32s* dst, int len, int s);
void mulLoop(const Tarn32s* a, const Tarn32sc* b, Tarn32sc* dst, int len, int s);
void mulLoop(const Tarn32sc* a, const Tarn32sc* b, Tarn32sc* dst, int len, int s);

void mulConstantLoop(const Tarn32f* src, Tarn32f val, Tarn32f* dst, int len);
void mulConstantLoop(const Tarn32fc* src, Tarn32fc val, Tarn32fc* dst, int len);
void mulConstantLoop(const Tarn8u* src, Tarn8u val, Tarn8u* dst, int len, int s);
void mulConstantLoop(const Tarn16s* src, Tarn16s val, Tarn16s* dst, int len, int s);
void mulConstantLoop(const Tarn16sc* src, Tarn16sc val, Tarn16sc* dst, int len, int s);
void mulConstantLoop(const Tarn32s* src, Tarn32s val, Tarn32s* dst, int len, int s);
void mulConstantLoop(const Tarn32f* src, Tarn32f val, Tarn16s* dst, int len, int s);

void addProductLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* sum, int len);
void addProductLoop(const Tarn32fc* a, const Tarn32fc* b, Tarn32fc* sum, int len);
void addProductLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* sum, int len, int s);
void addProductLoop(const Tarn16s* a, const Tarn16s* b, Tarn32s* sum, int len, int s);
void addProductLoop(const Tarn32s* a, const Tarn32s* b, Tarn32s* sum, int len, int s);

} // namespace tarn::bench

// What A-law and mu-law are usually coded with: a search of the highest bit for each sample, and tables of 256 entries.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void aLawBitSearch(const Tarn16s* src, Tarn8u* dst, int len);
void muLawBitSearch(const Tarn16s* src, Tarn8u* dst, int len);

/// Floats rounded to samples before the search.
void aLawBitSearch(const Tarn32f* src, Tarn8u* dst, int len);
void muLawBitSearch(const Tarn32f* src, Tarn8u* dst, int len);

void fromTable(const Tarn16s* table, const Tarn8u* src, Tarn16s* dst, int len);
void fromTable(const Tarn32f* table, const Tarn8u* src, Tarn32f* dst, int len);
void fromTable(const Tarn8u* table, const Tarn8u* src, Tarn8u* dst, int len);

} // namespace tarn::bench

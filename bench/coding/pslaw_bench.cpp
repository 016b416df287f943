// A-law and mu-law: coding beside the search of the highest bit, decoding and law to law beside a table.
#include "tarns/companding.h"

#include "coding/pslaw_peer.h"
#include "support/compare.h"

#include <array>
#include <numeric>

namespace tarn::bench {
namespace {

const Sizes lengths = sizes(160, 1024, 8192);

template <class S>
void compareCoder(const std::string& name, TarnStatus (*ours)(const S*, Tarn8u*, int),
                  void (*bits)(const S*, Tarn8u*, int))
{
    compare<Tarn8u, S>(lengths, name, ours, peer("bits", bits));
}

/// Beside the table that the function itself fills.
template <class D>
void compareTable(const std::string& name, TarnStatus (*ours)(const Tarn8u*, D*, int))
{
    std::array<Tarn8u, 256> bytes;
    std::iota(bytes.begin(), bytes.end(), Tarn8u{0});
    std::array<D, 256> table;
    ours(bytes.data(), table.data(), 256);
    compare<D, Tarn8u>(lengths, name, ours, peer("table", [table](const Tarn8u* src, D* dst, int n) {
                           fromTable(table.data(), src, dst, n);
                       }));
}

const Comparison cases = [] {
    compareCoder<Tarn16s>("linToALaw_16s8u", tarnsLinToALaw_16s8u, aLawBitSearch);
    compareCoder<Tarn16s>("linToMuLaw_16s8u", tarnsLinToMuLaw_16s8u, muLawBitSearch);
    compareCoder<Tarn32f>("linToALaw_32f8u", tarnsLinToALaw_32f8u, aLawBitSearch);
    compareCoder<Tarn32f>("linToMuLaw_32f8u", tarnsLinToMuLaw_32f8u, muLawBitSearch);
    compareTable<Tarn16s>("aLawToLin_8u16s", tarnsALawToLin_8u16s);
    compareTable<Tarn16s>("muLawToLin_8u16s", tarnsMuLawToLin_8u16s);
    compareTable<Tarn32f>("aLawToLin_8u32f", tarnsALawToLin_8u32f);
    compareTable<Tarn32f>("muLawToLin_8u32f", tarnsMuLawToLin_8u32f);
    compareTable<Tarn8u>("aLawToMuLaw_8u", tarnsALawToMuLaw_8u);
    compareTable<Tarn8u>("muLawToALaw_8u", tarnsMuLawToALaw_8u);
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench

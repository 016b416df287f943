#include "interface/digest/rules.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <numeric>

namespace tarn::test::digest {
namespace {

std::vector<int> range(int first, int last, std::initializer_list<int> more = {})
{
    std::vector<int> values(static_cast<std::size_t>(last - first + 1));
    std::iota(values.begin(), values.end(), first);
    values.insert(values.end(), more);
    return values;
}

bool contains(std::initializer_list<const char*> names, const std::string& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

// Where a value is wrong on purpose, it stands beside many good ones.
const std::vector<int>* integersFor(const std::string& name)
{
    static const std::map<std::string, std::vector<int>> lists = {
        {"alphaQ15", range(-3, 3, {32767, -32768, 16384, -16384, 5243, 70000, -70000})},
        {"chanLen", range(1, 70, {300})},
        {"dlyLineIndex", range(0, 3, {0, 0, 0, -1})},
        {"doNormal", {0, 1}},
        {"downFactor", range(1, 6, {0})},
        {"downPhase", range(0, 3, {0, 0, 0, -1})},
        {"dstLen", range(1, 40, {64, 100, 151, 152, 153, 367, 368, 500, 855, 856, 857, 1200, 3000})},
        {"factor", range(1, 6, {0})},
        {"flag", {1, 2, 4, 8, 1, 2, 4, 8, 1, 2, 4, 8, 0}},
        {"hint", {0, 1, 2, 3}},
        {"lenHigh", range(1, 12, {0, 16, 33, 66})},
        {"lenLow", range(1, 12, {0, 16, 33, 66})},
        {"index", range(0, 5, {-1})},
        {"length", range(1, 40, {45, 49, 60, 64, 101, 121, 151, 181, 202, 302, 360, 512, 1000, 2025, 2187})},
        {"lowLag", range(-12, 12, {-40, -100, -300, -900, 30, 64, 200, 600, -1000000})},
        {"maskSize", range(1, 14, {0, 3, 5, 7, 9, 15, 25, 31, 32, 64, 65, 129, 300})},
        {"mu", {1, 7, 100, 1000, 16384, 32768, 40000, 65535, -300, 0}},
        {"nChannels", range(1, 5)},
        {"numBq", range(1, 6, {0})},
        {"offsHigh", range(-1, 6, {-2, 11, 40})},
        {"offsLow", range(-1, 6, {-2, 11, 40})},
        {"order", range(0, 11, {0, 1, 2, 3, 4, 5, 6, 7, 8, 12, 13, 15, 17})},
        {"relOp", range(0, 5, {0, 4})},
        {"rndMode", {0, 1, 0, 1, 2}},
        {"scaleFactor", range(-36, 36, {0, 0, 0, 0, 0,  0,  0,  0,  1,  1,  1,  1,  1,  1,   1,   1,   2,   2,
                                        2, 3, 5, 8, 15, 16, -1, -1, -1, -1, -2, -3, -8, -15, -16, 100, -100})},
        {"src2Len", range(1, 40, {40, 50, 62, 63, 64, 65, 66, 100, 128, 200, 256, 300, 500, 1400})},
        {"srcShiftRight", range(-1, 16, {0, 0, 0, 31, 40})},
        {"tapStep", range(1, 5, {1, 1, 2, 0})},
        {"tapsFactor", range(-18, 18, {0, 0, 0})},
        {"tapsLen",
         range(1, 40, {5, 6, 7, 8, 9, 10, 15, 16, 17, 31, 33, 63, 64, 65, 66, 100, 127, 128, 255, 300, 700})},
        {"tblLen", range(1, 60, {300})},
        {"upFactor", range(1, 6, {0})},
        {"upPhase", range(0, 3, {0, 0, 0, -1})},
        {"updateDly", range(0, 4, {0, 0, 30})},
        {"vDiv", {1, 2, 3, 7, 100, -1, -5, 0, 32767, -32768, 65536}},
        {"val", range(0, 9, {-1, 15, 16, 17, 31, 32, 33})}, // a number of bits: other values are no integers
        {"winType", range(0, 4)},
    };
    const auto found = lists.find(name);
    return found == lists.end() ? nullptr : &found->second;
}

const std::pair<double, double>* intervalFor(const std::string& name)
{
    static const std::map<std::string, std::pair<double, double>> intervals = {
        {"alpha", {-1.5, 1.5}},       {"asym", {-3.14, 3.14}},    {"asymQ15", {-102943, 102943}},
        {"magn", {1, 32767}},         {"mu", {0, 0.01}},          {"pPhase", {0, 6.28}},
        {"phaseQ15", {0, 205887}},    {"rFreq", {0.01, 0.499}},   {"rFreqQ15", {0, 16384}},
        {"rHighFreq", {0.25, 0.499}}, {"rLowFreq", {0.01, 0.25}},
    };
    const auto found = intervals.find(name);
    return found == intervals.end() ? nullptr : &found->second;
}

bool isLength(const std::string& name) { return contains({"len", "srcLen", "src1Len", "numIters"}, name); }

bool isDataNumber(const std::string& name)
{
    return contains({"errVal", "high",  "inpVal", "level",  "levelGT", "levelLT", "low", "mean",  "offset",  "refVal",
                     "seed",   "slope", "src",    "stdDev", "vDiv",    "vSub",    "val", "value", "valueGT", "valueLT"},
                    name);
}

bool isDataArray(const std::string& name)
{
    return contains({"pDlyHigh",  "pDlyLow",     "pDstHigh",   "pDstLow",  "pSrcHigh", "pSrcLow",  "pTapsHigh",
                     "pTapsLow",  "pDlyLine",    "pDp",        "pDst",     "pDstIm",   "pDstMagn", "pDstPhase",
                     "pSeed",     "pSrcMagn",    "pSrcPhase",  "pDstLen",  "pDstRe",   "pDstVal",  "pIndx",
                     "pMax",      "pMaxIndx",    "pMean",      "pMin",     "pMinIndx", "pNorm",    "pOrder",
                     "pOutIndex", "pOutIndexes", "pOutVal",    "pOutVals", "pSrc",     "pSrc1",    "pSrc2",
                     "pSrcDst",   "pSrcIm",      "pSrcRe",     "pStdDev",  "pSum",     "pTaps",    "pTapsFactor",
                     "pVal",      "pVals",       "pSrcDstVal", "pDlyVal",  "pRef",     "pTapsInv"},
                    name);
}

bool isSizeInBytes(const std::string& name) { return contains({"pBufferSize", "pSize"}, name); }

bool isWorkMemory(const std::string& name) { return contains({"pBuffer"}, name); }

} // namespace tarn::test::digest

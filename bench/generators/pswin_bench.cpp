// Windows and generators beside loops with one cosf for every element.
#include "tarns.h"

#include "pswin_peer.h"
#include "support/compare.h"

namespace tarn::bench {
namespace {

const Sizes lengths = {64, 1024, 16384};

template <class T>
void compareWindow(const std::string& name, TarnStatus (*window)(const T*, T*, int))
{
    compare<T, T>(lengths, name, window, peer("loop", [](const T* src, T* dst, int n) { windowLoop(src, dst, n); }));
}

template <class T, class Magn, class Real>
void compareTone(const std::string& name, TarnStatus (*tone)(T*, int, Magn, Real, Real*, TarnHintAlgorithm), int hint)
{
    compare<T>(
        lengths, name,
        [=](T* dst, int n) {
            Real phase = 0;
            return tone(dst, n, 1000, static_cast<Real>(0.0371), &phase, hint);
        },
        peer("loop", [](T* dst, int n) { toneLoop(reinterpret_cast<Tarn32f*>(dst), n, 1000, 0.0371F, 0); }));
}

template <class T, class Magn, class Real>
void compareTriangle(const std::string& name, TarnStatus (*triangle)(T*, int, Magn, Real, Real, Real*))
{
    compare<T>(lengths, name, [=](T* dst, int n) {
        Real phase = 0;
        return triangle(dst, n, 1000, static_cast<Real>(0.0371), 0, &phase);
    });
}

#define TARN_COMPARE_WINDOW(NAME, STEM)                 \
    compareWindow(NAME "_16s", tarnsWin##STEM##_16s);   \
    compareWindow(NAME "_16sc", tarnsWin##STEM##_16sc); \
    compareWindow(NAME "_32f", tarnsWin##STEM##_32f);   \
    compareWindow(NAME "_32fc", tarnsWin##STEM##_32fc); \
    compareWindow(NAME "_64f", tarnsWin##STEM##_64f);   \
    compareWindow(NAME "_64fc", tarnsWin##STEM##_64fc)

const Comparison cases = [] {
    TARN_COMPARE_WINDOW("winBartlett", Bartlett);
    TARN_COMPARE_WINDOW("winHann", Hann);
    TARN_COMPARE_WINDOW("winHamming", Hamming);
    TARN_COMPARE_WINDOW("winBlackmanStd", BlackmanStd);

    compareTone("toneFast_32f", tarnsTone_Direct_32f, tarnAlgHintFast);
    compareTone("toneFast_32fc", tarnsTone_Direct_32fc, tarnAlgHintFast);
    compareTone("toneFast_64f", tarnsTone_Direct_64f, tarnAlgHintFast);
    compareTone("toneFast_64fc", tarnsTone_Direct_64fc, tarnAlgHintFast);
    compareTone("toneFast_16sc", tarnsTone_Direct_16sc, tarnAlgHintFast);
    compareTone("toneAccurate_32f", tarnsTone_Direct_32f, tarnAlgHintAccurate);
    // Half the bytes of the loop's samples.
    comparePrepared(
        lengths, "toneFast_16s",
        [](int n) {
            auto* const dst = filledBuffer<Tarn16s>(0, n, Fill::signal);
            return [=] {
                Tarn32f phase = 0;
                return tarnsTone_Direct_16s(dst, n, 1000, 0.0371F, &phase, tarnAlgHintFast);
            };
        },
        peer("loop", [](int n) {
            auto* const dst = filledBuffer<Tarn32f>(0, n, Fill::signal);
            return [=] { toneLoop(dst, n, 1000, 0.0371F, 0); };
        }));

    compareTriangle("triangle_16s", tarnsTriangle_Direct_16s);
    compareTriangle("triangle_32f", tarnsTriangle_Direct_32f);
    compareTriangle("triangle_64f", tarnsTriangle_Direct_64f);
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench

#include "search/sort_sweeps.h"

#include <bit>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define KOLTA_SORT_SWEEPS_SSE2 1
#endif

// About two million keys pass through the sweeps of 2000 rows. One key a
// step, each step waits on the compare of the one before. Eight sixteen-bit
// keys in an SSE2 register, which every x86-64 processor has, go through a
// step together: the key carried into each lane is found in three shifts and
// maxima, and only the carried key waits on the step before. Where the carried
// key goes past whole blocks, as in a long run, a block costs one compare.

namespace sort_sweeps {

#if defined(KOLTA_SORT_SWEEPS_SSE2)
namespace {

constexpr int Lanes = 8;

// The vector work of a sweep in direction d. Lanes hold places in memory
// order, so a sweep down walks its lanes from the last to the first.
template <int d>
struct Lanewise;

template <>
struct Lanewise<+1> {
    // The key carried past: the larger.
    static __m128i Carried(__m128i a, __m128i b) { return _mm_max_epi16(a, b); }
    static __m128i Left(__m128i a, __m128i b) { return _mm_min_epi16(a, b); }
    static __m128i Passes(__m128i next, __m128i carried) { return _mm_cmplt_epi16(next, carried); }
    // Each lane `lanes` lanes on in the sweep's direction, the lanes left empty
    // holding a key that is never carried.
    template <int lanes>
    static __m128i Onward(__m128i keys)
    {
        const __m128i never = _mm_srli_si128(_mm_set1_epi16(INT16_MIN), 16 - 2 * lanes);
        return _mm_or_si128(_mm_slli_si128(keys, 2 * lanes), never);
    }
    // The last lane the sweep reaches, in every lane.
    static __m128i LastLane(__m128i keys)
    {
        const __m128i high = _mm_shufflehi_epi16(keys, 0xFF);
        return _mm_unpackhi_epi64(high, high);
    }
    // Of the lanes set in a byte mask, the last the sweep reaches.
    static int LastOf(int mask) { return (31 - std::countl_zero(static_cast<unsigned>(mask))) / 2; }
};

template <>
struct Lanewise<-1> {
    static __m128i Carried(__m128i a, __m128i b) { return _mm_min_epi16(a, b); }
    static __m128i Left(__m128i a, __m128i b) { return _mm_max_epi16(a, b); }
    static __m128i Passes(__m128i next, __m128i carried) { return _mm_cmpgt_epi16(next, carried); }
    template <int lanes>
    static __m128i Onward(__m128i keys)
    {
        const __m128i never = _mm_slli_si128(_mm_set1_epi16(INT16_MAX), 16 - 2 * lanes);
        return _mm_or_si128(_mm_srli_si128(keys, 2 * lanes), never);
    }
    static __m128i LastLane(__m128i keys)
    {
        const __m128i low = _mm_shufflelo_epi16(keys, 0);
        return _mm_unpacklo_epi64(low, low);
    }
    static int LastOf(int mask) { return std::countr_zero(static_cast<unsigned>(mask)) / 2; }
};

}  // namespace
#endif

template <int d>
int SweepSixteenBit(std::int16_t* keys, int from, int to, Hint& hint)
{
    int p = from + d;
    int moved = from - d;
#if defined(KOLTA_SORT_SWEEPS_SSE2)
    using L = Lanewise<d>;
    constexpr int allLanes = 0xFFFF;
    const bool longRuns = hint.longRuns;
    int blocks = 0;
    int blocksPassed = 0;
    __m128i carried = _mm_set1_epi16(keys[from]);
    for (; d > 0 ? p + Lanes - 1 <= to : p - (Lanes - 1) >= to; p += d * Lanes, ++blocks) {
        std::int16_t* const block = d > 0 ? keys + p : keys + p - (Lanes - 1);
        const __m128i next = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block));
        __m128i* const left = reinterpret_cast<__m128i*>(block - d);
        // The carried key goes past all eight. Only where the last sweep went
        // past whole blocks is this branch worth its guess.
        if (longRuns && _mm_movemask_epi8(L::Passes(next, carried)) == allLanes) {
            _mm_storeu_si128(left, next);
            moved = static_cast<int>(block - keys) + L::LastOf(allLanes);
            ++blocksPassed;
            continue;
        }
        // `out`, lane i: the key lane i carries on, the largest (up) or
        // smallest (down) of the block's keys the sweep reaches up to lane i.
        // `in`: the key carried into lane i, from the lanes before or the
        // block before. Lane i keeps the smaller (up) of its key and the one
        // carried in; its key moves when the carried one passes it.
        __m128i out = L::Carried(next, L::template Onward<1>(next));
        out = L::Carried(out, L::template Onward<2>(out));
        out = L::Carried(out, L::template Onward<4>(out));
        const __m128i in = L::Carried(carried, L::template Onward<1>(out));
        _mm_storeu_si128(left, L::Left(next, in));
        // A select rather than a branch: in a random order no guess would hold.
        const int passed = _mm_movemask_epi8(L::Passes(next, in));
        const int lastPassed = static_cast<int>(block - keys) + L::LastOf(passed);
        moved = passed != 0 ? lastPassed : moved;
        blocksPassed += passed == allLanes;
        carried = L::LastLane(L::Carried(carried, out));
    }
    hint.longRuns = 4 * blocksPassed >= 3 * blocks;
    keys[p - d] = static_cast<std::int16_t>(_mm_cvtsi128_si32(carried));
#else
    (void)hint;
#endif
    // The keys short of a block, one a step.
    const int movedAfter = Sweep<d>(keys, p - d, to);
    return movedAfter != p - 2 * d ? movedAfter : moved;
}

template int SweepSixteenBit<+1>(std::int16_t* keys, int from, int to, Hint& hint);
template int SweepSixteenBit<-1>(std::int16_t* keys, int from, int to, Hint& hint);

}  // namespace sort_sweeps

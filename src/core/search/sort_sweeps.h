#pragma once

#include <cstdint>
#include <type_traits>
#include <vector>

// The game lists a search's results with a two-way bubble sort and widens the
// sort bar once for each pair of sweeps, by how far the first sweep starts
// into the rows. The editor orders the rows with a stable sort of its own,
// which gives the same order, and follows the game's sweeps on the rows' keys
// alone, so that the bar moves as the game's does.
//
// A sweep up carries the largest key so far along; each smaller key it passes
// moves down a place. A sweep down carries the smallest key so far down in
// the same way. Keys that are equal never pass each other. Each sweep ends the
// span of the next pair at the last key it moved.

namespace sort_sweeps {

// Sweeps keys `from` to `to` in direction `d`, +1 up or -1 down; gives the
// place of the last key that moved, from - d if none did. One key a step:
// the carried key and the next are compared once and both kept by selects,
// without a branch whose way no predictor could guess in a random order.
template <int d, class Key>
int Sweep(Key* keys, int from, int to)
{
    int moved = from - d;
    Key carried = keys[from];
    for (int p = from + d; d > 0 ? p <= to : p >= to; p += d) {
        const Key next = keys[p];
        const bool passed = d > 0 ? next < carried : carried < next;
        keys[p - d] = passed ? next : carried;
        carried = passed ? carried : next;
        moved = passed ? p : moved;
    }
    keys[to] = carried;
    return moved;
}

// What a sweep of sixteen-bit keys tells the next one in its direction:
// whether the carried key went past whole blocks of keys, as in a long run.
struct Hint {
    bool longRuns = true;
};

// The same for sixteen-bit keys, eight at a time where the processor can.
template <int d>
int SweepSixteenBit(std::int16_t* keys, int from, int to, Hint& hint);

template <int d, class Key>
int SweepAnyKey(Key* keys, int from, int to, Hint& hint)
{
    if constexpr (std::is_same_v<Key, std::int16_t>)
        return SweepSixteenBit<d>(keys, from, to, hint);
    else
        return Sweep<d>(keys, from, to);
}

}  // namespace sort_sweeps

// Calls beforePair(first, last) with the span of each pair of sweeps the
// game's sort makes over keys[1] to keys[keys.size() - 1], the smaller key
// going first; keys[0] is not used. The keys end sorted.
template <class Key, class BeforePair>
void FollowSortSweeps(std::vector<Key>& keys, BeforePair beforePair)
{
    sort_sweeps::Hint up;
    sort_sweeps::Hint down;
    int first = 1;
    int last = static_cast<int>(keys.size()) - 1;
    while (first < last) {
        beforePair(first, last);
        last = sort_sweeps::SweepAnyKey<+1>(keys.data(), first, last, up) - 1;
        if (first >= last)
            break;
        first = sort_sweeps::SweepAnyKey<-1>(keys.data(), last, first, down) + 1;
    }
}

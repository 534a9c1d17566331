// One second of what a microphone hears, which repeats with each second of the monotonic clock.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

constexpr int soundRate = 48000;

// word: beep (50 ms of 1 hz at the second's start), tone (440 Hz) or silence; another is warned of and is
// silence.
std::vector<int16_t> secondOfSound(const std::string &word);

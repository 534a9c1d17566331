#pragma once

// What a movie's sound is made of: 32-bit floating point samples, those of one moment side by side (a frame).
constexpr int soundRate = 48000; // frames a second
constexpr int soundChannels = 2;
constexpr char soundCaps[] = "audio/x-raw,format=F32LE,layout=interleaved,rate=48000,channels=2";

// Some microphones give their sound in bursts. What has not come after this time is missing, seconds.
constexpr double mostSoundDelay = 0.75;

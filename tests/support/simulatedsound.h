#pragma once

// A microphone whose sound goes into a track, for a time that nobody waits for.
struct SimulatedMicrophone {
    double clock = 0;     // by what part of its rate it is fast
    double bursts = 0;    // gives its sound every so many seconds; 0 for pieces of a hundredth
    double jitter = 0;    // a piece comes up to so many seconds late
    double seconds = 0;   // length of the movie
    double lostFrom = 0;  // what it captures from here
    double lostUntil = 0; // to here is lost
};

// What became of it, in seconds, by the frames' own moments of capture.
struct SimulatedSound {
    double least = 0; // lateness of a frame
    double most = 0;
    double atEnd = 0;
    double longestJump = 0; // in the lateness, from one frame to the next
    double silence = 0;     // after the first frame of sound
    double length = 0;
};

SimulatedSound simulate(const SimulatedMicrophone &microphone);

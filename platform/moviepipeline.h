#pragma once

#include "platform/moviesettings.h"

// The elements of one movie file, put together and stopped. The pipeline owns the others.
struct MoviePipeline {
    ElementHandle pipeline;
    GstElement *muxer = nullptr;        // writes the index
    GstElement *pictureQueue = nullptr; // encoded pictures that wait for the muxer, and it for the disk
    GstElement *pictures = nullptr;     // appsrc that takes the frames
    GstElement *silence = nullptr;      // live source under the microphone's sound
    GstElement *mixer = nullptr;        // where the microphone joins
    GstElement *soundEncoder = nullptr; // what the mixed sound goes into

    bool isComplete() const { return pipeline != nullptr; }
};

// An incomplete one when an element is missing.
MoviePipeline buildMoviePipeline(const MovieSettings &settings);

// Makes the muxer write the index often, or seldom while it is behind with writing the movie itself. To be
// called again and again while the movie runs, from any one thread.
void paceIndex(const MoviePipeline &movie);

// Bytes of encoded pictures that wait for the disk.
qint64 waitingBytes(const MoviePipeline &movie);

// By how much the sound of such a movie is later than its time stamps say, nanoseconds: the encoder puts a
// packet of its own before the first, which no player is told to leave out.
GstClockTime soundDelay();

// What the encoders of such a movie give at most, in bytes a second.
qint64 mostBytesPerSecond(const MovieSettings &settings);

// The longest movie that a file built here can index, in seconds.
int longestMovieSeconds();

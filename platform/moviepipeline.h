#pragma once

#include "platform/gsthandles.h"
#include "platform/h264coders.h"
#include "platform/moviesettings.h"

// One movie file and what is set and asked of its elements while it runs.
struct MoviePipeline {
    ElementHandle pipeline;
    ElementHandle muxer;        // writes the index
    ElementHandle pictureQueue; // encoded pictures that wait for the muxer, and it for the disk
    ElementHandle soundQueue;   // the same of the sound
    ElementHandle pictures;     // appsrc that takes the frames
    ElementHandle pictureEncoder;
    ElementHandle sound; // appsrc that takes the sound, as in platform/soundformat.h

    QString fault; // why it is not complete

    bool isComplete() const { return pipeline != nullptr; }
};

// An incomplete one when an element is missing.
MoviePipeline buildMoviePipeline(const MovieSettings &settings, const H264Coder &encoder);

// Makes the muxer write the index often, or seldom while it is behind with writing the movie itself. To be
// called again and again while the movie runs, from any one thread.
void paceIndex(const MoviePipeline &movie);

// Bytes of encoded pictures that wait for the disk, or for the sound beside them.
qint64 waitingBytes(const MoviePipeline &movie);

// By how much the sound of such a movie is later than its time stamps say, seconds: the encoder puts a
// packet of its own before the first, which no player is told to leave out.
double soundDelay();

// What the encoders of such a movie give at most, in bytes a second.
qint64 mostBytesPerSecond(const MovieSettings &settings);

// The longest movie that a file built here can index, in seconds.
int longestMovieSeconds();

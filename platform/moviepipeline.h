#pragma once

#include "platform/h264coders.h"
#include "platform/moviesettings.h"

// The elements of one movie file, put together and stopped. The pipeline owns the others.
struct MoviePipeline {
    ElementHandle pipeline;
    GstElement *muxer = nullptr;        // writes the index
    GstElement *pictureQueue = nullptr; // encoded pictures that wait for the muxer, and it for the disk
    GstElement *soundQueue = nullptr;   // the same of the sound
    GstElement *pictures = nullptr;     // appsrc that takes the frames
    GstElement *pictureEncoder = nullptr;
    GstElement *sound = nullptr; // appsrc that takes the sound, as in platform/soundformat.h

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

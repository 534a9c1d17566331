#pragma once

#include <QSize>
#include <QString>

// A way to encode or to decode H.264, to be taken to parseElements().
struct H264Coder {
    const char *element;     // without which it is not to be had
    const char *description; // of it and what it needs beside it; an encoder's has gaps
};

// What a movie's pictures are encoded with, and a camera's H.264 is decoded with: software, or this machine's
// hardware once it was proven and as long as it is trusted. Any thread, as everything here.
const H264Coder &h264Encoder(QSize picture);
const H264Coder &h264Decoder();

// An encoder's, for pictures of that size.
QString h264EncoderDescription(const H264Coder &encoder, QSize picture, int framesPerSecond);
// What such an encoder gives at most, in thousands of bits a second.
int mostKilobits(QSize picture, int framesPerSecond);

// Tries what hardware GStreamer lists: what does the work of the software, and takes less of the processor
// for it, is used from then on. Takes some seconds for each, in processes of their own; none when nothing is
// listed.
void proveH264Hardware();

// Has software do the work from now on, once something went wrong with this one. Of software nothing changes.
void distrust(const H264Coder &coder);

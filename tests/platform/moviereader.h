#pragma once

#include "platform/gsthandles.h"

#include <gst/app/gstappsink.h>

#include <QImage>
#include <QString>

#include <vector>

// What a player makes of a movie: the moments of its frames and sounds, in seconds.
struct MovieContents {
    struct Frame {
        double time = 0;
        int middle = 0;       // brightness, 0 to 255
        qint64 captured = -1; // of a counter picture: when, in microseconds of the monotonic clock
    };
    std::vector<Frame> frames;
    QImage first; // grey, as last
    QImage last;
    std::vector<double> loudMoments; // where sound begins after quiet
    double lastLoud = -1;            // -1 without any sound
    double longestQuiet = 0;         // between loud sounds
    double soundLength = 0;
    QByteArray colours; // as the file tells them beside the pictures
    bool isReadToItsEnd = false;

    double length() const { return frames.empty() ? 0 : frames.back().time; }
};

MovieContents readMovie(const QString &path);

// Of a movie of flashes and beeps: by how many seconds each beep is later than the flash beside it.
std::vector<double> latenesses(const MovieContents &movie);

// Whether one that is not ours plays picture and sound to the end.
bool playsInAnotherPlayer(const QString &path);

#pragma once

#include "platform/gsthandles.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <vector>

// Frames a second; none when a camera does not tell.
struct FrameRate {
    int numerator = 0;
    int denominator = 1;

    double value() const { return double(numerator) / denominator; }
};

// One way in which a camera can deliver its picture.
struct CaptureMode {
    enum class Coding { Raw, Jpeg, H264 };

    Coding coding = Coding::Raw;
    QString rawFormat; // GStreamer's name of the pixel format; empty unless raw
    QSize size;        // pixels
    FrameRate rate;

    bool isValid() const { return !size.isEmpty(); }
};

// Every mode of the caps that this program can take a picture from, one a size of each entry, each with the
// frame rate that suits it: 30 a second, else the next above, else the fastest that is offered. Modes in
// another memory than the system's and grey-only ones (infrared) are left out. Ranges of sizes give the usual
// sizes in them.
std::vector<CaptureMode> captureModes(const GstCaps *caps);

// The mode in which to open a camera: the largest picture at 24 frames a second or more, else the largest;
// where that is no larger than 640x480, the largest from 1280x720 on at 10 frames or more, if there is one.
// At the same size the better rate, then raw before JPEG before H.264. An invalid mode when there is none.
CaptureMode nativeMode(const std::vector<CaptureMode> &modes);

// The best mode of exactly that size; an invalid mode when the size is not offered.
CaptureMode modeOfSize(const std::vector<CaptureMode> &modes, const QSize &size);

// "640x480" and so on, smallest to largest, each size once.
QStringList resolutionNames(const std::vector<CaptureMode> &modes);

// Caps that leave a camera no choice but that mode.
CapsHandle fixedCaps(const CaptureMode &mode);

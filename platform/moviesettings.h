#pragma once

#include "platform/capturedevice.h"

#include <QSize>
#include <QString>

// What one movie is made from and where it goes.
struct MovieSettings {
    QString path;             // full path of the .mov file; what is there is replaced
    GstVideoInfo picture{};   // the frames that will come
    int framesPerSecond = 30; // about how many of them
    CaptureDevice microphone; // its device is never null

    QSize pictureSize() const { return {GST_VIDEO_INFO_WIDTH(&picture), GST_VIDEO_INFO_HEIGHT(&picture)}; }
};

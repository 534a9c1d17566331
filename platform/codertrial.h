#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

#include <chrono>

// What came of encoding a short movie of a moving page and decoding it again.
struct CoderTrial {
    static constexpr QSize picture{1920, 1080};
    static constexpr int framesPerSecond = 30;

    QString fault;       // null when it came to its end
    QByteArray pictures; // the decoded ones, small and grey, one after the other
    std::chrono::microseconds processorTime{0};
    std::chrono::milliseconds length{0};
};

// Encodes and decodes with what is described so for GStreamer's parser, in a process of its own: a driver
// that crashes or hangs takes nothing along. That process has a low priority, and goes with this one. Lasts
// some seconds, five of which nothing happens in at most; any thread, one at a time.
CoderTrial tryCoders(const QString &encoder, const QString &decoder);

// What both take of the processor, for the log.
QString comparison(const CoderTrial &hardware, const CoderTrial &software);
// Whether hardware takes less of the processor, but not by enough, or takes longer than software and than the
// movie lasts: other work may be the reason for either.
bool isCloseCall(const CoderTrial &hardware, const CoderTrial &software);
// Why software is to be preferred; null when hardware works and takes less of the processor.
QString shortcoming(const CoderTrial &hardware, const CoderTrial &software);

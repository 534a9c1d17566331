#include "platform/h264coders.h"

#include "platform/capturelog.h"
#include "platform/codertrial.h"

#include <gst/gst.h>

#include <algorithm>
#include <atomic>

namespace
{

// The bit rate is a ceiling for restless pictures, in bits a pixel and second.
constexpr double bitsPerPixel = 0.15;
constexpr int leastKilobits = 500;
// A key frame every two seconds keeps jumping about in the player quick.
constexpr int secondsPerKeyFrame = 2;

// Smaller pictures are little work, and hardware has its own idea of what is too small.
constexpr QSize leastForHardware(1280, 720);

constexpr int mostTrials = 3;

// Of this quality a page of text is good to read. It keeps up with full HD on an old notebook, and holds no
// frames back, so that a movie ends at once.
const H264Coder softwareEncoder = {
    "x264enc", "x264enc quantizer=23 pass=qual speed-preset=superfast tune=zerolatency bitrate={kilobits} "
               "key-int-max={keyframe}"};
// What makes the stream for a trial of decoders. Less work of its own, of which no two trials take the same,
// leaves more of what is measured to them.
const H264Coder quickEncoder = {"x264enc", "x264enc quantizer=23 pass=qual speed-preset=ultrafast "
                                           "tune=zerolatency key-int-max={keyframe}"};
// Threads that each decode a frame would keep the picture back by as many frames.
const H264Coder softwareDecoder = {"avdec_h264", "avdec_h264 thread-type=slice"};

// The better one of a kind first.
const H264Coder hardwareEncoders[] = {
    {"vah264enc",
     "videoconvert ! vah264enc rate-control=vbr bitrate={kilobits} key-int-max={keyframe} b-frames=0"},
    {"vah264lpenc",
     "videoconvert ! vah264lpenc rate-control=vbr bitrate={kilobits} key-int-max={keyframe} b-frames=0"},
    // Left to itself it takes the lowest level that the driver names.
    {"v4l2h264enc", "videoconvert ! v4l2h264enc extra-controls=controls,video_bitrate_mode=0,"
                    "video_bitrate={kilobits}000,video_gop_size={keyframe},h264_i_frame_period={keyframe} "
                    "! capsfilter caps=video/x-h264,level=(string)4.2"},
};
const H264Coder hardwareDecoders[] = {{"vah264dec", "vah264dec"}, {"v4l2h264dec", "v4l2h264dec"}};

std::atomic<const H264Coder *> encoderInUse{&softwareEncoder};
std::atomic<const H264Coder *> decoderInUse{&softwareDecoder};

bool isInstalled(const H264Coder &coder)
{
    return gst_registry_check_feature_version(gst_registry_get(), coder.element, 1, 0, 0);
}

template<size_t n> bool isAnyInstalled(const H264Coder (&coders)[n])
{
    return std::any_of(std::begin(coders), std::end(coders), isInstalled);
}

CoderTrial tryPair(const H264Coder &encoder, const H264Coder &decoder)
{
    return tryCoders(h264EncoderDescription(encoder, CoderTrial::picture, CoderTrial::framesPerSecond),
                     QLatin1String(decoder.description));
}

// Takes the first that is better than the software.
template<size_t n, typename Try>
void prove(const H264Coder (&coders)[n], const H264Coder &softwareCoder, const Try &tryOne,
           std::atomic<const H264Coder *> *inUse)
{
    if (!isAnyInstalled(coders))
        return;
    const CoderTrial software = tryOne(softwareCoder);
    if (!software.fault.isNull()) {
        qCWarning(movieLog).noquote() << "Hardware for H.264 is not tried: " << software.fault;
        return;
    }
    for (const H264Coder &coder : coders) {
        if (!isInstalled(coder))
            continue;
        CoderTrial trial = tryOne(coder);
        for (int others = 1; others < mostTrials && isCloseCall(trial, software); ++others)
            trial = tryOne(coder);
        const QString why = shortcoming(trial, software);
        if (why.isNull()) {
            qCInfo(movieLog).noquote().nospace()
                << coder.element << " is used: it takes " << comparison(trial, software) << '.';
            *inUse = &coder;
            return;
        }
        qCWarning(movieLog).noquote().nospace() << coder.element << " is not used: " << why;
    }
}

// False when that was not in use, or is what would replace it.
bool replace(std::atomic<const H264Coder *> *inUse, const H264Coder &coder, const H264Coder &software)
{
    const H264Coder *expected = &coder;
    return &coder != &software && inUse->compare_exchange_strong(expected, &software);
}

} // namespace

const H264Coder &h264Encoder(QSize picture)
{
    const bool isLarge =
        picture.width() >= leastForHardware.width() && picture.height() >= leastForHardware.height();
    return isLarge ? *encoderInUse : softwareEncoder;
}

const H264Coder &h264Decoder()
{
    return *decoderInUse;
}

QString h264EncoderDescription(const H264Coder &encoder, QSize picture, int framesPerSecond)
{
    return QString::fromLatin1(encoder.description)
        .replace(QLatin1String("{kilobits}"), QString::number(mostKilobits(picture, framesPerSecond)))
        .replace(QLatin1String("{keyframe}"), QString::number(framesPerSecond * secondsPerKeyFrame));
}

int mostKilobits(QSize picture, int framesPerSecond)
{
    const double pixels = double(picture.width()) * picture.height();
    return qMax(leastKilobits, int(pixels * framesPerSecond * bitsPerPixel / 1000));
}

void proveH264Hardware()
{
    prove(
        hardwareEncoders, softwareEncoder,
        [](const H264Coder &encoder) { return tryPair(encoder, softwareDecoder); }, &encoderInUse);
    prove(
        hardwareDecoders, softwareDecoder,
        [](const H264Coder &decoder) { return tryPair(quickEncoder, decoder); }, &decoderInUse);
}

void distrust(const H264Coder &coder)
{
    if (replace(&encoderInUse, coder, softwareEncoder) || replace(&decoderInUse, coder, softwareDecoder))
        qCWarning(movieLog).noquote().nospace() << coder.element << " is used no more.";
}

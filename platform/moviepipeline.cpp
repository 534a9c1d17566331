#include "platform/moviepipeline.h"

#include "platform/movielimits.h"
#include "platform/parsedelements.h"
#include "platform/soundformat.h"

#include <QFile>

namespace
{

// With margin for a stop that comes late.
constexpr int indexedSeconds = longestRecordingSeconds + 60;
constexpr int stopBeforeSeconds = 20;

// The index is written anew this often, so that a movie whose program dies plays up to here.
constexpr GstClockTime indexPeriod = 500 * GST_MSECOND;
// Each time the muxer waits for the disk, twice. On one that takes a second for that it would fall behind
// ever further, so it catches up first; on one too slow even for the movie the index comes this often.
constexpr GstClockTime seldomIndexPeriod = 20 * GST_SECOND;

// The index takes 4 bytes for a sample's size and 8 for its duration where frames come unevenly; twice that
// leaves room for key frames and chunks. An index that outgrows its place ends the movie.
constexpr int indexBytesPerFrame = 24;
constexpr int soundPacketSamples = 1024;
constexpr int soundPacketsPerSecond = soundRate / soundPacketSamples + 1;
constexpr int leastIndexBytesPerSecond = indexBytesPerFrame * soundPacketsPerSecond;

constexpr int soundBitRate = 128000;

// Holds the encoded streams while the muxer waits for the disk: a minute and more of movie.
constexpr guint muxQueueBytes = 64 * 1024 * 1024;

// Not live: the muxer waits for the later of the two streams. The parser tells how long each frame lasts;
// without that the last one would not be seen. What is written must be in the file when the program dies, not
// in a buffer of the file's own. No other encoder of the sound: soundDelay() is what this one was measured to
// take.
QString movieElements(const QString &pictureEncoder)
{
    return QStringLiteral(
               "appsrc name=pictures format=time max-bytes=0 ! bin.( name=encoder %1 ) ! h264parse "
               "! queue name=picturequeue max-size-buffers=0 max-size-time=0 max-size-bytes=%2 "
               "! muxer.video_0 "
               "appsrc name=sound format=time max-bytes=0 caps=%3 ! audioconvert "
               "! avenc_aac bitrate=%4 "
               "! queue name=soundqueue max-size-buffers=0 max-size-time=0 max-size-bytes=%2 "
               "! muxer.audio_0 "
               "qtmux name=muxer ! filesink name=file sync=false async=false buffer-mode=unbuffered")
        .arg(pictureEncoder)
        .arg(muxQueueBytes)
        .arg(QLatin1String(soundCaps))
        .arg(soundBitRate);
}

CapsHandle capsOf(const MovieSettings &settings)
{
    GstVideoInfo info = settings.picture;
    info.fps_n = settings.framesPerSecond;
    info.fps_d = 1;
    return CapsHandle(gst_video_info_to_caps(&info));
}

void reserveIndex(GstElement *muxer, const MovieSettings &settings)
{
    const int bytesPerSecond =
        qMax(leastIndexBytesPerSecond, 2 * indexBytesPerFrame * qMax(1, settings.framesPerSecond));
    // The size of the place is fixed before the period is looked at, so all of them are set together.
    g_object_set(muxer, "reserved-max-duration", guint64(indexedSeconds) * GST_SECOND,
                 "reserved-moov-update-period", guint64(indexPeriod), "reserved-bytes-per-sec",
                 guint(bytesPerSecond), nullptr);
}

} // namespace

MoviePipeline buildMoviePipeline(const MovieSettings &settings, const H264Coder &encoder)
{
    MoviePipeline movie;
    const QString pictureEncoder =
        h264EncoderDescription(encoder, settings.pictureSize(), settings.framesPerSecond);
    GstElement *elements = parseElements(movieElements(pictureEncoder), &movie.fault);
    if (!elements)
        return movie;
    movie.pipeline.reset(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new("movie"))));
    gst_bin_add(GST_BIN(movie.pipeline.get()), elements);
    const auto named = [elements](const char *name) {
        return ElementHandle(gst_bin_get_by_name(GST_BIN(elements), name));
    };
    movie.muxer = named("muxer");
    movie.pictureQueue = named("picturequeue");
    movie.soundQueue = named("soundqueue");
    movie.pictures = named("pictures");
    movie.pictureEncoder = named("encoder");
    movie.sound = named("sound");
    reserveIndex(movie.muxer.get(), settings);
    g_object_set(movie.pictures.get(), "caps", capsOf(settings).get(), nullptr);
    g_object_set(named("file").get(), "location", QFile::encodeName(settings.path).constData(), nullptr);
    return movie;
}

// What the muxer is behind with waits in both queues; in one alone it only waits for the other.
void paceIndex(const MoviePipeline &movie)
{
    guint64 pictures = 0;
    guint64 sound = 0;
    g_object_get(movie.pictureQueue.get(), "current-level-time", &pictures, nullptr);
    g_object_get(movie.soundQueue.get(), "current-level-time", &sound, nullptr);
    const bool isBehind = qMin(pictures, sound) >= indexPeriod;
    g_object_set(movie.muxer.get(), "reserved-moov-update-period",
                 guint64(isBehind ? seldomIndexPeriod : indexPeriod), nullptr);
}

qint64 waitingBytes(const MoviePipeline &movie)
{
    guint bytes = 0;
    g_object_get(movie.pictureQueue.get(), "current-level-bytes", &bytes, nullptr);
    return bytes;
}

double soundDelay()
{
    return double(soundPacketSamples) / soundRate;
}

qint64 mostBytesPerSecond(const MovieSettings &settings)
{
    return (qint64(mostKilobits(settings.pictureSize(), settings.framesPerSecond)) * 1000 + soundBitRate) / 8;
}

int longestMovieSeconds()
{
    return indexedSeconds - stopBeforeSeconds;
}

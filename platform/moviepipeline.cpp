#include "platform/moviepipeline.h"

#include "platform/movielimits.h"
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

class Assembly
{
public:
    Assembly() : m_pipeline(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new("movie")))) {}

    // The element, owned by the pipeline; null, remembered as a failure, when it is not installed.
    GstElement *add(const char *element) { return add(gst_element_factory_make(element, nullptr)); }
    GstElement *add(GstElement *made)
    {
        if (made)
            gst_bin_add(GST_BIN(m_pipeline.get()), made);
        m_isComplete = m_isComplete && made;
        return made;
    }
    void chain(std::initializer_list<GstElement *> elements)
    {
        GstElement *last = nullptr;
        for (GstElement *element : elements) {
            m_isComplete = m_isComplete && element && (!last || gst_element_link(last, element));
            last = element;
        }
    }
    bool isComplete() const { return m_isComplete; }
    ElementHandle take() { return std::move(m_pipeline); }

private:
    ElementHandle m_pipeline;
    bool m_isComplete = true;
};

GstElement *addMuxQueue(Assembly &assembly)
{
    GstElement *queue = assembly.add("queue");
    if (queue)
        g_object_set(queue, "max-size-buffers", 0U, "max-size-time", guint64(0), "max-size-bytes",
                     muxQueueBytes, nullptr);
    return queue;
}

GstElement *addMuxer(Assembly &assembly, const MovieSettings &settings)
{
    GstElement *muxer = assembly.add("qtmux");
    if (!muxer)
        return nullptr;
    const int bytesPerSecond =
        qMax(leastIndexBytesPerSecond, 2 * indexBytesPerFrame * qMax(1, settings.framesPerSecond));
    // The size of the place is fixed before the period is looked at, so all of them are set together.
    g_object_set(muxer, "reserved-max-duration", guint64(indexedSeconds) * GST_SECOND,
                 "reserved-moov-update-period", guint64(indexPeriod), "reserved-bytes-per-sec",
                 guint(bytesPerSecond), nullptr);
    return muxer;
}

GstElement *addFile(Assembly &assembly, const QString &path)
{
    GstElement *file = assembly.add("filesink");
    if (!file)
        return nullptr;
    g_object_set(file, "location", QFile::encodeName(path).constData(), "sync", FALSE, "async", FALSE,
                 nullptr);
    // What is written must be in the file when the program dies, not in a buffer of its own.
    gst_util_set_object_arg(G_OBJECT(file), "buffer-mode", "unbuffered");
    return file;
}

// Not live: the muxer waits for the later of the two.
GstElement *addSource(Assembly &assembly, GstCaps *caps)
{
    GstElement *source = assembly.add("appsrc");
    if (source)
        g_object_set(source, "caps", caps, "format", GST_FORMAT_TIME, "block", FALSE, "max-bytes", guint64(0),
                     nullptr);
    return source;
}

GstElement *addPictures(Assembly &assembly, const MovieSettings &settings)
{
    GstVideoInfo info = settings.picture;
    info.fps_n = settings.framesPerSecond;
    info.fps_d = 1;
    const CapsHandle caps(gst_video_info_to_caps(&info));
    return addSource(assembly, caps.get());
}

} // namespace

MoviePipeline buildMoviePipeline(const MovieSettings &settings, const H264Coder &encoder)
{
    Assembly assembly;
    MoviePipeline movie;
    movie.muxer = addMuxer(assembly, settings);
    assembly.chain({movie.muxer, addFile(assembly, settings.path)});

    movie.pictures = addPictures(assembly, settings);
    movie.pictureQueue = addMuxQueue(assembly);
    // The parser tells how long each frame lasts. Without that the last one would not be seen.
    movie.pictureEncoder =
        assembly.add(makeH264Encoder(encoder, settings.pictureSize(), settings.framesPerSecond));
    assembly.chain(
        {movie.pictures, movie.pictureEncoder, assembly.add("h264parse"), movie.pictureQueue, movie.muxer});

    const CapsHandle caps(gst_caps_from_string(soundCaps));
    movie.sound = addSource(assembly, caps.get());
    movie.soundQueue = addMuxQueue(assembly);
    // No other one: soundDelay() is what this one was measured to take.
    GstElement *soundEncoder = assembly.add("avenc_aac");
    assembly.chain({movie.sound, assembly.add("audioconvert"), soundEncoder, movie.soundQueue, movie.muxer});
    if (!assembly.isComplete())
        return {};
    g_object_set(soundEncoder, "bitrate", soundBitRate, nullptr);
    movie.pipeline = assembly.take();
    return movie;
}

// What the muxer is behind with waits in both queues; in one alone it only waits for the other.
void paceIndex(const MoviePipeline &movie)
{
    guint64 pictures = 0;
    guint64 sound = 0;
    g_object_get(movie.pictureQueue, "current-level-time", &pictures, nullptr);
    g_object_get(movie.soundQueue, "current-level-time", &sound, nullptr);
    const bool isBehind = qMin(pictures, sound) >= indexPeriod;
    g_object_set(movie.muxer, "reserved-moov-update-period",
                 guint64(isBehind ? seldomIndexPeriod : indexPeriod), nullptr);
}

qint64 waitingBytes(const MoviePipeline &movie)
{
    guint bytes = 0;
    g_object_get(movie.pictureQueue, "current-level-bytes", &bytes, nullptr);
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

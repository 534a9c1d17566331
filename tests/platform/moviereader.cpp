#include "tests/platform/moviereader.h"

#include "tests/plugins/counterpicture.h"

#include <QProcess>

#include <algorithm>
#include <cstdlib>

namespace
{

// Between two beeps; a beep itself crosses zero more often.
constexpr double quietSeconds = 0.1;
constexpr int loud = 3000;

SampleHandle nextSample(GstElement *sink)
{
    return SampleHandle(gst_app_sink_try_pull_sample(GST_APP_SINK(sink), 5 * GST_SECOND));
}

double seconds(GstBuffer *buffer)
{
    return double(GST_BUFFER_PTS(buffer)) / GST_SECOND;
}

void readFrames(GstElement *sink, MovieContents *contents)
{
    while (const SampleHandle sample = nextSample(sink)) {
        GstVideoInfo info;
        gst_video_info_from_caps(&info, gst_sample_get_caps(sample.get()));
        GstBuffer *buffer = gst_sample_get_buffer(sample.get());
        MappedFrame frame(info, buffer, GST_MAP_READ);
        const QImage picture(static_cast<const uchar *>(GST_VIDEO_FRAME_PLANE_DATA(frame.get(), 0)),
                             info.width, info.height, GST_VIDEO_FRAME_PLANE_STRIDE(frame.get(), 0),
                             QImage::Format_Grayscale8);
        const auto luma = [&picture](int x, int y) { return qGray(picture.pixel(x, y)); };
        contents->frames.push_back({seconds(buffer), luma(info.width / 2, info.height / 2),
                                    readCounter(luma, info.width, info.height)});
        contents->last = picture.copy();
        if (contents->first.isNull())
            contents->first = contents->last;
    }
}

void readSound(GstElement *sink, MovieContents *contents)
{
    double &lastLoud = contents->lastLoud;
    while (const SampleHandle sample = nextSample(sink)) {
        GstBuffer *buffer = gst_sample_get_buffer(sample.get());
        GstMapInfo mapped;
        gst_buffer_map(buffer, &mapped, GST_MAP_READ);
        const auto *samples = reinterpret_cast<const gint16 *>(mapped.data);
        const size_t count = mapped.size / sizeof *samples;
        for (size_t i = 0; i < count; ++i) {
            const double time = seconds(buffer) + double(i) / 48000;
            if (std::abs(samples[i]) < loud)
                continue;
            if (lastLoud >= 0)
                contents->longestQuiet = std::max(contents->longestQuiet, time - lastLoud);
            if (lastLoud < 0 || time - lastLoud > quietSeconds)
                contents->loudMoments.push_back(time);
            lastLoud = time;
        }
        contents->soundLength = seconds(buffer) + double(count) / 48000;
        gst_buffer_unmap(buffer, &mapped);
    }
}

} // namespace

MovieContents readMovie(const QString &path)
{
    MovieContents contents;
    // The queues hold a whole test movie, as the two are read one after the other.
    const QByteArray description =
        "filesrc location=\"" + path.toUtf8() +
        "\" ! qtdemux name=d d.video_0 ! queue max-size-buffers=0 max-size-time=0 max-size-bytes=500000000 ! "
        "avdec_h264 ! videoconvert ! video/x-raw,format=GRAY8 ! appsink name=frames sync=false "
        "d.audio_0 ! queue max-size-buffers=0 max-size-time=0 max-size-bytes=500000000 ! avdec_aac ! "
        "audioconvert ! audio/x-raw,format=S16LE,channels=1,rate=48000 ! appsink name=sound sync=false";
    const ElementHandle pipeline(gst_parse_launch(description.constData(), nullptr));
    const ElementHandle frames(gst_bin_get_by_name(GST_BIN(pipeline.get()), "frames"));
    const ElementHandle sound(gst_bin_get_by_name(GST_BIN(pipeline.get()), "sound"));
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    readFrames(frames.get(), &contents);
    readSound(sound.get(), &contents);
    contents.isReadToItsEnd =
        gst_app_sink_is_eos(GST_APP_SINK(frames.get())) && gst_app_sink_is_eos(GST_APP_SINK(sound.get()));
    const ElementHandle demuxer(gst_bin_get_by_name(GST_BIN(pipeline.get()), "d"));
    const ObjectHandle<GstPad> pad(gst_element_get_static_pad(demuxer.get(), "video_0"));
    if (const CapsHandle caps{pad ? gst_pad_get_current_caps(pad.get()) : nullptr})
        contents.colours = gst_structure_get_string(gst_caps_get_structure(caps.get(), 0), "colorimetry");
    gst_element_set_state(pipeline.get(), GST_STATE_NULL);
    return contents;
}

std::vector<double> latenesses(const MovieContents &movie)
{
    std::vector<double> late;
    for (size_t i = 1; i < movie.frames.size(); ++i) {
        if (movie.frames[i].middle < 128 || movie.frames[i - 1].middle >= 128)
            continue;
        for (const double beep : movie.loudMoments) {
            if (std::abs(beep - movie.frames[i].time) < 0.4)
                late.push_back(beep - movie.frames[i].time);
        }
    }
    return late;
}

bool playsInAnotherPlayer(const QString &path)
{
    QProcess player;
    player.start("ffmpeg",
                 {"-v", "error", "-xerror", "-i", path, "-map", "0:v", "-map", "0:a", "-f", "null", "-"});
    return player.waitForFinished() && player.exitCode() == 0 && player.readAllStandardError().isEmpty();
}

#include "platform/screenpixels.h"

#include <QtTest>

#include <random>

class TestScreenPixels : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatGStreamerShows();
};

// Soft patches of colour: how the colours between two pixels are found is each converter's own business.
static BufferHandle patches(const GstVideoInfo &info)
{
    const GstVideoInfo small = pictureInfo(GST_VIDEO_FORMAT_BGRx, {4, 3});
    const BufferHandle colours(gst_buffer_new_allocate(nullptr, small.size, nullptr));
    std::minstd_rand random(1);
    MappedFrame frame(small, colours.get(), GST_MAP_WRITE);
    auto *bytes = static_cast<uchar *>(GST_VIDEO_FRAME_PLANE_DATA(frame.get(), 0));
    for (gsize i = 0; i < small.size; ++i)
        bytes[i] = uchar(random() >> 8);
    BufferHandle picture(gst_buffer_new_allocate(nullptr, info.size, nullptr));
    FrameConverter converter(GST_VIDEO_RESAMPLER_METHOD_CUBIC);
    converter.convert(small, colours.get(), QRect(0, 0, 4, 3), info, picture.get());
    return picture;
}

// The greatest difference of one colour of one pixel to what GStreamer's own converter makes of it.
static int mostDifference(const GstVideoInfo &info, GstBuffer *picture, const QRect &part)
{
    cv::Mat shown(part.height(), part.width(), CV_8UC4);
    cv::Mat expected(part.height(), part.width(), CV_8UC4);
    if (!ScreenPixels().convert(info, picture, part, &shown) ||
        !FrameConverter(GST_VIDEO_RESAMPLER_METHOD_NEAREST)
             .convert(info, picture, part, pictureInfo(GST_VIDEO_FORMAT_BGRx, part.size()),
                      wrapPixels(expected).get()))
        return INT_MAX;
    int most = 0;
    for (int i = 0; i < part.width() * part.height() * 4; ++i) {
        if (i % 4 != 3) // the fourth byte is not shown
            most = qMax(most, qAbs(shown.data[i] - expected.data[i]));
    }
    return most;
}

void TestScreenPixels::showsWhatGStreamerShows()
{
    // Nobody sees a difference of so much; a wrong matrix, range or order of colours is far beyond.
    constexpr int invisible = 8;
    for (const QByteArray format : {"I420", "Y42B", "NV12", "YUY2", "UYVY", "Y444", "RGB"}) {
        for (const QByteArray colours : {"bt601", "bt709", "1:4:0:0", "1:3:0:0", "bt2020"}) {
            GstVideoInfo info = pictureInfo(gst_video_format_from_string(format), {322, 242});
            QVERIFY(gst_video_colorimetry_from_string(&info.colorimetry, format == "RGB" ? "sRGB" : colours));
            const BufferHandle picture = patches(info);
            for (const QRect &part : {QRect(0, 0, 322, 242), QRect(64, 34, 200, 150)})
                QVERIFY2(mostDifference(info, picture.get(), part) <= invisible,
                         QByteArray(format + colours));
        }
    }
}

int main(int argc, char **argv)
{
    gst_init(&argc, &argv);
    TestScreenPixels test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_screenpixels.moc"

#include "platform/framerenderer.h"
#include "platform/moviepictures.h"
#include "platform/screenpixels.h"

#include <QTest>

#include <random>

class TestScreenPixels : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatGStreamerShows();
    void turnsWithoutMirroring();
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
static int mostDifference(const FramePtr &frame, const QRect &part, const QSize &size)
{
    cv::Mat shown(size.height(), size.width(), CV_8UC4);
    cv::Mat expected(size.height(), size.width(), CV_8UC4);
    FramePlanes planes;
    if (!ScreenPixels().convert(frame, part, &planes, &shown) ||
        !FrameConverter(GST_VIDEO_RESAMPLER_METHOD_LINEAR)
             .convert(frame->info, frame->picture.get(), part, pictureInfo(GST_VIDEO_FORMAT_BGRx, size),
                      wrapPixels(expected.data, expected.total() * 4).get()))
        return INT_MAX;
    int most = 0;
    for (int i = 0; i < size.width() * size.height() * 4; ++i) {
        if (i % 4 != 3) // the fourth byte is not shown
            most = qMax(most, qAbs(shown.data[i] - expected.data[i]));
    }
    return most;
}

// The same of one byte of a movie's picture.
static int mostDifferenceInMovie(const FramePtr &frame)
{
    FramePlanes planes;
    const FramePtr made =
        MoviePictures().make(frame, &planes, Framing(), MoviePictures::infoOf(frame->size()));
    const BufferHandle expected(gst_buffer_new_allocate(nullptr, made->info.size, nullptr));
    FrameConverter(GST_VIDEO_RESAMPLER_METHOD_LINEAR)
        .convert(frame->info, frame->picture.get(), QRect(QPoint(0, 0), frame->size()), made->info,
                 expected.get());
    MappedFrame is(made->info, made->picture.get(), GST_MAP_READ);
    MappedFrame shouldBe(made->info, expected.get(), GST_MAP_READ);
    int most = 0;
    for (int plane = 0; plane < 3; ++plane) {
        for (int y = 0; y < GST_VIDEO_FRAME_COMP_HEIGHT(is.get(), plane); ++y) {
            for (int x = 0; x < GST_VIDEO_FRAME_COMP_WIDTH(is.get(), plane); ++x) {
                const auto at = [&](MappedFrame &mapped) {
                    return GST_VIDEO_FRAME_COMP_DATA(
                        mapped.get(), plane)[y * GST_VIDEO_FRAME_COMP_STRIDE(mapped.get(), plane) + x];
                };
                most = qMax(most, qAbs(at(is) - at(shouldBe)));
            }
        }
    }
    return most;
}

void TestScreenPixels::showsWhatGStreamerShows()
{
    // Nobody sees a difference of so much in one pixel; a wrong matrix, range or order of colours is far
    // beyond.
    constexpr int invisible = 16;
    for (const QByteArray format :
         {"I420", "YV12", "Y42B", "Y41B", "NV12", "NV21", "NV16", "YUY2", "YVYU", "UYVY", "VYUY",
          "NV61", "AYUV", "Y444", "RGB",  "BGR",  "RGBx", "BGRx", "xRGB", "xBGR", "RGBA", "BGRA"}) {
        for (const QByteArray colours : {"bt601", "bt709", "1:4:0:0", "1:3:0:0", "bt2020", "smpte240m"}) {
            auto frame = std::make_shared<CapturedFrame>();
            // Neither a multiple of what vectors take nor even, and interlaced. GStreamer's own converter
            // mixes up the two colours of these where a row ends on an odd pixel.
            const QRect whole(0, 0, format == "VYUY" || format == "NV61" ? 322 : 323, 243);
            frame->info = pictureInfo(gst_video_format_from_string(format), whole.size());
            const bool isRgb = GST_VIDEO_INFO_IS_RGB(&frame->info);
            QVERIFY(gst_video_colorimetry_from_string(&frame->info.colorimetry, isRgb ? "sRGB" : colours));
            frame->picture = patches(frame->info);
            frame->info.interlace_mode = GST_VIDEO_INTERLACE_MODE_INTERLEAVED;
            const int inMovie = mostDifferenceInMovie(frame);
            QVERIFY2(inMovie <= invisible, QByteArray(format + colours + ": " + QByteArray::number(inMovie)));
            for (const QRect &part : {whole, QRect(64, 34, 200, 150)}) {
                for (const QSize &size : {part.size(), QSize(250, 188), QSize(400, 300)}) {
                    const int most = mostDifference(frame, part, size);
                    QVERIFY2(most <= invisible,
                             QByteArray(format + colours + ": " + QByteArray::number(most)));
                }
            }
        }
    }
}

static FramePtr patchesFrame(const char *format, const QSize &size)
{
    auto frame = std::make_shared<CapturedFrame>();
    frame->info = pictureInfo(gst_video_format_from_string(format), size);
    frame->picture = patches(frame->info);
    return frame;
}

static QImage shown(const FramePtr &frame, const Framing &framing, const QSize &box)
{
    FramePlanes planes;
    const cv::Mat pixels = FrameRenderer().render(frame, &planes, framing, box);
    return QImage(pixels.data, pixels.cols, pixels.rows, int(pixels.step), QImage::Format_RGB32).copy();
}

// The brightness of a movie's picture, or one of its two planes of colour.
static QImage inMovie(const FramePtr &frame, const Framing &framing, const QSize &size, int plane)
{
    FramePlanes planes;
    const FramePtr made = MoviePictures().make(frame, &planes, framing, MoviePictures::infoOf(size));
    MappedFrame picture(made->info, made->picture.get(), GST_MAP_READ);
    return QImage(static_cast<uchar *>(GST_VIDEO_FRAME_COMP_DATA(picture.get(), plane)),
                  GST_VIDEO_FRAME_COMP_WIDTH(picture.get(), plane),
                  GST_VIDEO_FRAME_COMP_HEIGHT(picture.get(), plane),
                  GST_VIDEO_FRAME_COMP_STRIDE(picture.get(), plane), QImage::Format_Grayscale8)
        .copy();
}

void TestScreenPixels::turnsWithoutMirroring()
{
    const QSize size(320, 240);
    const QSize box(200, 150);
    for (const char *format : {"I420", "YUY2", "NV12", "RGB"}) {
        const FramePtr frame = patchesFrame(format, size);
        Framing framing;
        framing.zoom.in({0.5, -0.5});
        const Framing upright = framing;
        for (int quarter = 1; quarter <= 4; ++quarter) {
            framing.turn.turnOn();
            const QTransform turn = QTransform().rotate(90 * quarter);
            const QSize turned = framing.turn.turned(size);
            QCOMPARE(shown(frame, framing, framing.turn.turned(box)),
                     shown(frame, upright, box).transformed(turn));
            for (int plane = 0; plane < 3; ++plane)
                QCOMPARE(inMovie(frame, framing, turned, plane),
                         inMovie(frame, upright, size, plane).transformed(turn));
        }
        QVERIFY(framing.turn.isNone());

        // A movie that began upright keeps its size.
        framing.turn.turnOn();
        const QImage fitted = inMovie(frame, framing, size, 0);
        const QRect place(70, 0, 180, 240);
        QCOMPARE(fitted.size(), size);
        for (int x : {0, place.left() - 1, place.right() + 1, size.width() - 1})
            QCOMPARE(qGray(fitted.pixel(x, 120)), 16);
        QCOMPARE(fitted.copy(place), inMovie(frame, framing, place.size(), 0));
    }
}

int main(int argc, char **argv)
{
    gst_init(&argc, &argv);
    TestScreenPixels test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_screenpixels.moc"

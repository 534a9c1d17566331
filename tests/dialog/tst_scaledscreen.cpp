#include "capture/livevideowidget.h"
#include "tests/dialog/mainwindow.h"
#include "util/desktop/look.h"
#include "util/desktop/screenscale.h"
#include "widgets/picturelistview.h"

// On a desktop that is scaled to the double, every picture is made of the screen's own pixels.
class TestScaledScreen : public QObject
{
    Q_OBJECT

    // Whether the widget's picture fills it. Of one that was made for half of the pixels, each stands there
    // four times.
    static bool hasOwnPixels(const QWidget *widget)
    {
        const int ratio = int(widget->devicePixelRatioF());
        const QPoint corner = widget->mapToGlobal(QPoint()) * ratio;
        const QImage image =
            QGuiApplication::primaryScreen()->grabWindow(0).toImage().copy({corner, widget->size() * ratio});
        int blocks = 0;
        int mixed = 0;
        for (int y = 0; y + 1 < image.height(); y += 2) {
            for (int x = 0; x + 1 < image.width(); x += 2) {
                const QRgb first = image.pixel(x, y);
                ++blocks;
                if (image.pixel(x + 1, y) != first || image.pixel(x, y + 1) != first)
                    ++mixed;
            }
        }
        constexpr int inside = 3; // a button leaves a gap around it
        const bool isFilled = qGray(image.pixel(image.width() - inside, image.height() / 2)) > 20;
        return isFilled && mixed * 50 > blocks;
    }

private slots:
    void showsPicturesInItsOwnPixels()
    {
        MainWindow program("AutoShoot=0\nPhotoPreview=0\nContinuShootCount=2\n", "YUY2 1280x960 30");
        QCOMPARE(program.window->devicePixelRatioF(), 2.0);
        QCOMPARE(program.window->size(), QGuiApplication::primaryScreen()->size());
        const auto *live = program.view<LiveVideoWidget>();
        QTRY_VERIFY(hasOwnPixels(live));
        QTRY_VERIFY(hasOwnPixels(program.button("Photo")));

        program.press("Photo");
        const auto *photo = program.view<PictureWidget>();
        QTRY_VERIFY(photo->isVisible() && hasOwnPixels(photo));
        program.press("PutPhoto");
        const QDir requests(working("tmp"));
        QFile request(requests.filePath(requests.entryList(QDir::Files).value(0)));
        QVERIFY(request.open(QIODevice::ReadOnly));
        const QSize pixels = photo->size() * 2;
        QCOMPARE(QString(request.readAll()).section('\n', 1, 1),
                 QString("%1x%2").arg(pixels.width()).arg(pixels.height()));

        program.press("List");
        auto *strip = program.view<PictureListView>();
        const auto thumbnail = [strip] {
            return strip->item(0)
                ->icon()
                .pixmap(strip->window()->windowHandle(), strip->iconSize())
                .toImage();
        };
        const QColor whileItIsRead(Qt::lightGray);
        QTRY_VERIFY(thumbnail().pixelColor(1, 1) != whileItIsRead);
        QCOMPARE(thumbnail().width(), strip->iconSize().width() * 2);
        QTest::keyClick(strip, Qt::Key_Space);
        program.press("Show");
        QTRY_COMPARE(program.tiles().size(), 1);
        const PictureWidget *tile = program.tiles().first();
        QTRY_VERIFY(hasOwnPixels(tile));
    }
};

// The scale is what the desktop says before the program starts.
int main(int argc, char **argv)
{
    followScreenScale();
    QApplication application(argc, argv);
    applyLook();
    TestScaledScreen test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_scaledscreen.moc"

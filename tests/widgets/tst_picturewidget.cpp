#include "util/webcamutil.h"
#include "widgets/picturewidget.h"
#include "widgets/stretchbitmapbutton.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestPictureWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void centresThePictureOnBlack();
    void keepsWhatItPainted();
    void listAndZoomMode();

private:
    // Where the picture, all of one colour, is seen.
    static QRect seen(QWidget &widget, const QColor &colour);

    QTemporaryDir m_dir;
};

void TestPictureWidget::initTestCase()
{
    QImage red(400, 300, QImage::Format_RGB888);
    red.fill(Qt::red);
    QVERIFY(red.save(WebcamUtil::getTemporaryPath() + "/photo1.png"));
    QImage blue(red.size(), red.format());
    blue.fill(Qt::blue);
    QVERIFY(blue.save(m_dir.filePath("photo1.png")));
    QVERIFY(QDir(m_dir.path()).mkdir("photo9.png"));
}

QRect TestPictureWidget::seen(QWidget &widget, const QColor &colour)
{
    const QImage image = widget.grab().toImage();
    QRegion region;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == colour)
                region += QRect(x, y, 1, 1);
        }
    }
    return region.boundingRect();
}

void TestPictureWidget::centresThePictureOnBlack()
{
    PictureWidget widget;
    widget.labelVisible(false);
    const QPair<QSize, QRect> table[] = {{{101, 30}, {30, 0, 40, 30}}, {{40, 51}, {0, 10, 40, 30}}};
    for (const auto &row : table) {
        widget.resize(row.first);
        widget.Loadbmp("photo1.png", QString()); // of the working folder
        QCOMPARE(seen(widget, Qt::red), row.second);
        widget.Loadbmp(QString(), m_dir.path()); // the same name
        QCOMPARE(seen(widget, Qt::blue), row.second);
        QCOMPARE(widget.fileName(), QString("photo1.png"));
    }
    for (const char *name : {"photo9.png", "gone.png"}) {
        widget.Loadbmp(name, m_dir.path());
        QCOMPARE(seen(widget, Qt::black), widget.rect());
    }
    widget.Release();
    widget.Loadbmp(QString(), QString());
    QCOMPARE(seen(widget, Qt::black), widget.rect());
}

// A small tile made large shows the small picture's few colours: the stored picture was scaled.
void TestPictureWidget::keepsWhatItPainted()
{
    QImage stripes(256, 256, QImage::Format_RGB888);
    for (int x = 0; x < 256; ++x) {
        for (int y = 0; y < 256; ++y)
            stripes.setPixelColor(x, y, QColor(x, 0, 0));
    }
    QVERIFY(stripes.save(m_dir.filePath("photo2.png")));
    PictureWidget widget;
    widget.labelVisible(false);
    widget.Loadbmp("photo2.png", m_dir.path());
    const auto colours = [&widget] {
        QSet<QRgb> found;
        const QImage image = widget.grab().toImage();
        for (int x = 0; x < image.width(); ++x)
            found << image.pixel(x, 10);
        return found.size();
    };
    for (int side : {256, 16, 256}) {
        widget.resize(side, side);
        colours();
    }
    QCOMPARE(colours(), 16);
    widget.Loadbmp(QString(), m_dir.path());
    QCOMPARE(colours(), 256);
}

void TestPictureWidget::listAndZoomMode()
{
    PictureWidget widget;
    widget.resize(400, 300);
    auto *caption = widget.findChild<QLabel *>();
    QCOMPARE(caption->text(), QString("Photo"));
    widget.show();
    widget.setLabelText("7");
    widget.ListMode();
    auto *zoom = widget.findChildren<CStretchBitmapButton *>().at(0);
    auto *back = widget.findChildren<CStretchBitmapButton *>().at(1);
    QVERIFY(zoom->accessibleName() == "Zoom" && back->accessibleName() == "Back");
    QVERIFY(zoom->isVisible() && !back->isVisible() && caption->isVisible());
    QVERIFY(zoom->width() > 0);
    QCOMPARE(zoom->geometry().bottomRight(), QPoint(399, 299));
    QSignalSpy zooms(&widget, &PictureWidget::onZoom);
    QTest::mouseClick(zoom, Qt::LeftButton);
    QCOMPARE(zooms.count(), 1);
    QCOMPARE(zooms.first().first().value<PictureWidget *>(), &widget);

    widget.resize(800, 600);
    widget.ZoomMode();
    QVERIFY(!zoom->isVisible() && back->isVisible() && caption->isVisible());
    QCOMPARE(caption->text(), QString());
    QCOMPARE(back->geometry(), QRect(QPoint(800 - zoom->width(), 600 - zoom->height()), zoom->size()));
    QSignalSpy backs(&widget, &PictureWidget::onBack);
    back->setFocus();
    QTest::keyClick(back, Qt::Key_Return);
    QCOMPARE(backs.count(), 1);
}

QTEST_MAIN(TestPictureWidget)
#include "tst_picturewidget.moc"

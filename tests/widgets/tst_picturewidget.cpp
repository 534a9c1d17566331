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
    void centresThePictureOnBlack_data();
    void centresThePictureOnBlack();
    void keepsWhatItPainted();
    void rememberedNamesAndFolders();
    void listAndZoomMode();

private:
    // Where the picture, all of one colour, is seen.
    static QRect seen(QWidget &widget, const QColor &colour);
    static CStretchBitmapButton *button(const QWidget &widget, const QString &name);

    QTemporaryDir m_dir;
};

void TestPictureWidget::initTestCase()
{
    QImage red(400, 300, QImage::Format_RGB888);
    red.fill(Qt::red);
    QVERIFY(red.save(m_dir.filePath("photo1.png")));
    QVERIFY(red.save(WebcamUtil::getTemporaryPath() + "/photo1.png"));
    red.fill(Qt::blue);
    QVERIFY(QDir(m_dir.path()).mkdir("other"));
    QVERIFY(red.save(m_dir.filePath("other/photo1.png")));
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

CStretchBitmapButton *TestPictureWidget::button(const QWidget &widget, const QString &name)
{
    for (CStretchBitmapButton *candidate : widget.findChildren<CStretchBitmapButton *>()) {
        if (candidate->accessibleName() == name)
            return candidate;
    }
    return nullptr;
}

void TestPictureWidget::centresThePictureOnBlack_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("picture");
    QTest::newRow("wide") << QSize(101, 30) << QRect(30, 0, 40, 30);
    QTest::newRow("tall") << QSize(40, 51) << QRect(0, 10, 40, 30);
    QTest::newRow("natural") << QSize(400, 300) << QRect(0, 0, 400, 300);
}

void TestPictureWidget::centresThePictureOnBlack()
{
    QFETCH(QSize, size);
    PictureWidget widget;
    widget.labelVisible(false);
    widget.resize(size);
    widget.Loadbmp("photo1.png", m_dir.path());
    QTEST(seen(widget, Qt::red), "picture");
    widget.Release();
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

void TestPictureWidget::rememberedNamesAndFolders()
{
    PictureWidget widget;
    widget.labelVisible(false);
    widget.resize(40, 30);
    widget.Loadbmp("photo1.png", QString());
    QVERIFY(!seen(widget, Qt::red).isNull());
    widget.Loadbmp(QString(), m_dir.filePath("other"));
    QCOMPARE(widget.fileName(), QString("photo1.png"));
    QVERIFY(!seen(widget, Qt::blue).isNull());
    for (const char *name : {"photo9.png", "gone.png"}) {
        widget.Loadbmp(name, m_dir.path());
        QCOMPARE(seen(widget, Qt::black), widget.rect());
    }
    widget.Release();
    widget.Loadbmp(QString(), QString());
    QCOMPARE(seen(widget, Qt::black), widget.rect());
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
    CStretchBitmapButton *zoom = button(widget, "Zoom");
    CStretchBitmapButton *back = button(widget, "Back");
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

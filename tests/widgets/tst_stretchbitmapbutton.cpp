#include "widgets/stretchbitmapbutton.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

class TestStretchBitmapButton : public QObject
{
    Q_OBJECT

private slots:
    void sizeFollowsBitmapAndScreen();
    void paintsTheBitmapOfItsState();
    void captionAndAccessibleName();
    void keyboardPressesAndShowsWhereItIs();

private:
    static QImage bitmap(const QString &name, const QSize &size)
    {
        return QImage(":/res/" + name)
            .scaled(size, Qt::KeepAspectRatio)
            .convertToFormat(QImage::Format_RGB32);
    }
    static QImage shown(QWidget &widget)
    {
        return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
};

void TestStretchBitmapButton::sizeFollowsBitmapAndScreen()
{
    const int sixth = QGuiApplication::primaryScreen()->availableGeometry().width() / 6;
    for (const char *name : {"Live", "Settings", "Zoom"}) {
        const QSize natural = QImage(QString(":/res/%1_up.bmp").arg(name)).size();
        QVERIFY2(natural.isValid(), name);
        const QSize expected =
            natural.width() > sixth ? natural.scaled(sixth, natural.height(), Qt::KeepAspectRatio) : natural;
        QWidget window;
        CStretchBitmapButton button(name, &window);
        QCOMPARE(button.size(), expected);
        QCOMPARE(button.baseSize(), expected);
        QVERIFY(button.isHidden());
    }
    QWidget window;
    QCOMPARE(CStretchBitmapButton("NoSuchBitmap", &window).size(), QSize(0, 0));
}

void TestStretchBitmapButton::paintsTheBitmapOfItsState()
{
    QWidget window;
    CStretchBitmapButton button("Live", &window);
    button.show();
    window.show();
    QCOMPARE(shown(button), bitmap("Live_up.bmp", button.size()));
    button.setDown(true);
    QCOMPARE(shown(button), bitmap("Live_dw.bmp", button.size()));
    button.setEnabled(false);
    QCOMPARE(shown(button), bitmap("Live_ds.bmp", button.size()));
}

void TestStretchBitmapButton::captionAndAccessibleName()
{
    QWidget window;
    CStretchBitmapButton button("SwitchPhoto", &window);
    button.setCaptionText("Movie /\n    Photo");
    window.show();
    button.show();
    QCOMPARE(button.accessibleName(), QString("Movie / Photo"));
    auto *caption = qobject_cast<QLabel *>(button.layout()->itemAt(1)->widget());
    QVERIFY(caption->x() >= button.width() * 2 / 5 - 1);
    const int width = QGuiApplication::primaryScreen()->availableGeometry().width();
    QCOMPARE(caption->font().pointSize(), width < 1024 ? width * 11 / 1024 : 11);
    // Readable on the black window, whatever colour common buttons have.
    QCOMPARE(caption->foregroundRole(), QPalette::WindowText);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    CStretchBitmapButton mirrored("Live", &window);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    mirrored.setCaptionText("Live");
    QCOMPARE(mirrored.findChild<QLabel *>()->text(), QString("  Live"));
    QCOMPARE(mirrored.findChild<QLabel *>()->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(mirrored.layoutDirection(), Qt::LeftToRight);
    QCOMPARE(mirrored.accessibleName(), QString("Live"));
    // A press on the caption presses the button.
    QSignalSpy clicks(&button, &QPushButton::clicked);
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicks.count(), 1);
}

void TestStretchBitmapButton::keyboardPressesAndShowsWhereItIs()
{
    QWidget window;
    CStretchBitmapButton first("Live", &window);
    CStretchBitmapButton second("Photo", &window);
    second.move(0, first.height());
    first.show();
    second.show();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    first.setFocus(Qt::MouseFocusReason);
    const QImage unmarked = shown(first);
    QTest::keyClick(&window, Qt::Key_Tab);
    QVERIFY(second.hasFocus());
    QTest::keyClick(&window, Qt::Key_Backtab);
    QVERIFY(first.hasFocus() && shown(first) != unmarked);
    QSignalSpy clicks(&first, &QPushButton::clicked);
    for (Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(&first, key);
    QCOMPARE(clicks.count(), 3);
    QTest::mouseClick(&second, Qt::LeftButton);
    QCOMPARE(shown(first), unmarked);
}

QTEST_MAIN(TestStretchBitmapButton)
#include "tst_stretchbitmapbutton.moc"

#include "capture/livevideowidget.h"
#include "tests/dialog/mainwindow.h"

#include <QProcess>
#include <QTouchDevice>

// What hands do on the live picture, seen on the screen and in the photos: of a camera with a colour in each
// quarter (red, green, blue, yellow), and a white square on the centre that reaches a third of the way to
// `nearCentre`.
class TestLiveHands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void zoomsMovesAndTurns();
    void zoomsByTheBoardsGesture();
    void takesTheFirstFingersPressBack();
    void endsTheGestureWithThePicture_data();
    void endsTheGestureWithThePicture();
    void tellsWhoListensOfTheFingers();
    void pinchesAnyCamera();

private:
    void open(const QString &camera = "Board Cam")
    {
        m_main = std::make_unique<MainWindow>("AutoShoot=0\nPhotoPreview=0\n", "YUY2 640x480 30", camera,
                                              "quarters");
        QTRY_COMPARE(onScreen(), QString("rgbyy"));
    }
    LiveVideoWidget *live() const { return m_main->view<LiveVideoWidget>(); }
    QPoint at(const QPointF &share) const
    {
        return {int(share.x() * live()->width()), int(share.y() * live()->height())};
    }
    QWidget *surface() const { return live()->childAt(at({0.5, 0.5})); }
    bool hasZoomCursor() const { return live()->cursor().shape() == Qt::BitmapCursor; }
    bool hasClosedHand() const { return surface()->cursor().shape() == Qt::ClosedHandCursor; }

    // The colours in the four corners, but below the caption, and near the centre.
    static QString colours(const QImage &image);
    QString onScreen() const
    {
        return colours(QGuiApplication::primaryScreen()->grabWindow(live()->winId()).toImage());
    }
    QImage photo() const;

    // As a hand does it: by the X server's own mouse and keyboard.
    void byHand(const QStringList &what) const { QCOMPARE(QProcess::execute("xdotool", what), 0); }
    void key(const QString &name, int times = 1) const
    {
        byHand({"key", "--repeat", QString::number(times), name});
    }
    QStringList moveTo(const QPointF &share) const
    {
        const QPoint point = live()->mapToGlobal(at(share));
        return {"mousemove", QString::number(point.x()), QString::number(point.y())};
    }

    void drag(const QPointF &from, const QPointF &to) const
    {
        byHand(moveTo(from) + QStringList{"mousedown", "1"} + moveTo((from + to) / 2) + moveTo(to) +
               QStringList{"mouseup", "1"});
    }

    // Fingers by their places.
    void touch(const QVector<QPoint> &places, Qt::TouchPointState last);

    std::unique_ptr<MainWindow> m_main;
    QTouchDevice *m_screen = QTest::createTouchDevice();
};

void TestLiveHands::init()
{
    m_main.reset();
}

QString TestLiveHands::colours(const QImage &image)
{
    const QPointF nearCentre(356.0 / 640, 276.0 / 480);
    QString letters;
    for (const QPointF &share :
         {QPointF(0.05, 0.15), QPointF(0.95, 0.15), QPointF(0.05, 0.95), QPointF(0.95, 0.95), nearCentre}) {
        const QColor colour =
            image.pixelColor(int(share.x() * image.width()), int(share.y() * image.height()));
        const int bright = 130; // between what each colour has of its own and what it lacks
        const int bits =
            (colour.red() > bright) * 4 + (colour.green() > bright) * 2 + (colour.blue() > bright);
        letters += "?bg?r?yw"[bits];
    }
    return letters;
}

// Taken with the button; what stands on the screen stays.
QImage TestLiveHands::photo() const
{
    QDir(WebcamUtil::getTemporaryPath()).removeRecursively();
    WebcamUtil::setTemporaryPath();
    m_main->press("Photo");
    const QString name = MainWindow::captures("photo*").value(0);
    m_main->press("Live");
    return QImage(working(name));
}

void TestLiveHands::touch(const QVector<QPoint> &places, Qt::TouchPointState last)
{
    QTest::QTouchEventSequence sequence = QTest::touchEvent(surface(), m_screen);
    for (int i = 0; i < places.size(); ++i) {
        const bool isLast = i == places.size() - 1;
        if (last == Qt::TouchPointReleased)
            sequence.release(i, places[i], surface());
        else if (isLast && last == Qt::TouchPointPressed)
            sequence.press(i, places[i], surface());
        else
            sequence.move(i, places[i], surface());
    }
}

void TestLiveHands::zoomsMovesAndTurns()
{
    open();
    const struct {
        const char *what;
        std::function<void()> work;
        QString colours;
        QSize photo = {640, 480};
    } table[] = {
        {"plus", [&] { key("plus", 3); }, "rgbyw"},
        {"minus", [&] { key("KP_Subtract", 3); }, "rgbyy"},
        // The colours' meeting point, once in the middle, is now far to the right and below.
        {"wheel",
         [&] {
             byHand(moveTo({0.25, 0.05}) + QStringList{"click", "--repeat", "4", "4"});
         },
         "rgrgr"},
        {"two drags",
         [&] {
             drag({0.5, 0.95}, {0.5, 0.05}), drag({0.5, 0.95}, {0.5, 0.05});
         },
         "bybyb"},
        {"whole", [&] { key("0"); }, "rgbyy"},
        {"a drag of the whole",
         [&] {
             drag({0.5, 0.5}, {0.1, 0.1});
         },
         "rgbyy"},
        {"a quarter", [&] { key("r"); }, "brygg", {480, 640}},
        {"plus once more", [&] { key("plus", 4); }, "brygw", {480, 640}},
        {"drag to the right",
         [&] {
             drag({0.1, 0.5}, {0.9, 0.5});
         },
         "bbyyy",
         {480, 640}},
        {"whole and half a turn", [&] { key("0"), key("r"); }, "ybgrr"},
        {"three quarters", [&] { key("r"); }, "gyrbb", {480, 640}},
        {"all around", [&] { key("r"); }, "rgbyy"},
    };
    for (const auto &row : table) {
        row.work();
        QTRY_COMPARE(onScreen(), row.colours);
        const QImage taken = photo();
        QVERIFY2(taken.size() == row.photo && colours(taken) == row.colours, row.what);
        QTRY_COMPARE(onScreen(), row.colours);
    }
}

void TestLiveHands::zoomsByTheBoardsGesture()
{
    open("Veltrix CX-20");
    const QPoint first = at({0.3, 0.4});
    const auto apart = [&](int pixels) { return QVector<QPoint>{first, first + QPoint(pixels, 0)}; };
    touch({first}, Qt::TouchPointPressed);
    touch(apart(60), Qt::TouchPointPressed);
    QVERIFY(!hasZoomCursor());
    touch(apart(61), Qt::TouchPointMoved);
    QVERIFY(hasZoomCursor());
    // Too little for a step, and too much.
    touch(apart(160), Qt::TouchPointMoved);
    touch(apart(620), Qt::TouchPointMoved);
    touch(apart(100), Qt::TouchPointMoved);
    QTest::qWait(100);
    QCOMPARE(onScreen(), QString("rgbyy"));
    for (const int pixels : {200, 300, 400})
        touch(apart(pixels), Qt::TouchPointMoved);
    touch(apart(400), Qt::TouchPointReleased);
    QVERIFY(!hasZoomCursor());
    QTRY_COMPARE(onScreen(), QString("rgbyw"));
    const QImage taken = photo();
    QVERIFY(taken.size() == QSize(640, 480) && colours(taken) == "rgbyw");
}

void TestLiveHands::takesTheFirstFingersPressBack()
{
    open("Veltrix CX-20");
    key("plus", 4);
    QTRY_COMPARE(onScreen(), QString("rgbyw"));
    const auto picture = [this] { return live()->grab().toImage(); };
    const QImage before = picture();
    const QPoint first = at({0.6, 0.5});
    touch({first}, Qt::TouchPointPressed);
    touch({first - QPoint(450, 0)}, Qt::TouchPointMoved);
    QTRY_COMPARE(onScreen(), QString("ggyyy")); // one finger drags
    touch({first - QPoint(450, 0), first + QPoint(50, 0)}, Qt::TouchPointPressed);
    QTRY_COMPARE(picture(), before);
    // A third one ends it, whatever those that stay do.
    const QPoint third(200, 200);
    touch({first, first + QPoint(50, 0), third}, Qt::TouchPointPressed);
    touch({first, first + QPoint(350, 0), third}, Qt::TouchPointMoved);
    touch({first, first + QPoint(350, 0), third}, Qt::TouchPointReleased);
    QTest::qWait(100);
    QCOMPARE(picture(), before);
}

void TestLiveHands::endsTheGestureWithThePicture_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<bool>("isDrag"); // of the enlarged picture by one hand, not the board's gesture
    for (const char *end : {"cancel", "hide", "loss"})
        QTest::addRow("gesture, %s", end) << end << false;
    for (const char *end : {"cancel", "hide", "loss", "loss by mouse", "hide by mouse"})
        QTest::addRow("drag, %s", end) << end << true;
}

void TestLiveHands::endsTheGestureWithThePicture()
{
    QFETCH(const QString, end);
    QFETCH(const bool, isDrag);
    open(isDrag ? "Board Cam" : "Veltrix CX-20");
    const QPoint first = at({0.3, 0.4});
    if (isDrag) {
        key("plus", 4);
        QTRY_COMPARE(onScreen(), QString("rgbyw"));
    }
    if (end.endsWith("mouse"))
        byHand(moveTo({0.3, 0.4}) + QStringList{"mousedown", "1"});
    else
        touch({first}, Qt::TouchPointPressed);
    if (!isDrag) {
        touch({first, first + QPoint(60, 0)}, Qt::TouchPointPressed);
        touch({first, first + QPoint(61, 0)}, Qt::TouchPointMoved);
    }
    QTRY_VERIFY(isDrag ? hasClosedHand() : hasZoomCursor());
    const Answers answers({"OK"});
    if (end == "cancel") {
        QTouchEvent cancel(QEvent::TouchCancel, m_screen);
        QCoreApplication::sendEvent(surface(), &cancel);
    } else if (end.startsWith("hide")) {
        m_main->button("List")->click();
    } else {
        m_main->devices.pull("cam");
    }
    QTRY_VERIFY(!hasZoomCursor() && !hasClosedHand());
    CDriverExtraInfo info;
    CDriverProxy::get()->getExtraInfo(info);
    QCOMPARE(info.gestureState, 0);
    if (end.startsWith("loss"))
        QTRY_COMPARE(answers.told().size(), 1);
    byHand({"mouseup", "1"});
}

void TestLiveHands::tellsWhoListensOfTheFingers()
{
    struct Fingers : IDriverEventListener {
        void notifyFingerDown(const QPoint &, int finger) override { down << finger; }
        void notifyFingerMove(const QPoint &at, int finger) override { places[finger] = at; }
        void notifyFingerUp(const QPoint &, int finger) override { up << finger; }
        QList<int> down, up;
        QMap<int, QPoint> places;
    } fingers;
    open();
    CDriverProxy::get()->initialize(&fingers);
    const QPoint first = at({0.3, 0.4});
    touch({first}, Qt::TouchPointPressed);
    touch({first, first + QPoint(60, 0)}, Qt::TouchPointPressed);
    touch({first, first + QPoint(80, 0)}, Qt::TouchPointMoved);
    touch({first, first + QPoint(80, 0)}, Qt::TouchPointReleased);
    CDriverProxy::get()->initialize(live());
    QVERIFY(fingers.down.size() == 2 && fingers.down[0] != fingers.down[1]);
    QCOMPARE(fingers.up, fingers.down);
    QCOMPARE(fingers.places[fingers.down[1]], surface()->mapToGlobal(first + QPoint(80, 0)));
}

void TestLiveHands::pinchesAnyCamera()
{
    open();
    // A mouse's right button alone is no gesture.
    byHand(moveTo({0.1, 0.1}) + QStringList{"mousedown", "3"});
    QTRY_COMPARE(QGuiApplication::mouseButtons(), Qt::RightButton);
    byHand(moveTo({0.9, 0.9}) + QStringList{"mouseup", "3"});
    QTRY_COMPARE(QGuiApplication::mouseButtons(), Qt::NoButton);
    // The place between the fingers stays where it is.
    const QPoint middle = at({0.25, 0.05});
    const auto apart = [&](int pixels) {
        return QVector<QPoint>{middle - QPoint(pixels / 2, 0), middle + QPoint(pixels / 2, 0)};
    };
    touch({apart(100).first()}, Qt::TouchPointPressed);
    touch(apart(100), Qt::TouchPointPressed);
    for (int pixels = 102; pixels < 250; pixels += 8)
        touch(apart(pixels), Qt::TouchPointMoved);
    QTRY_COMPARE(onScreen(), QString("rgrgr"));
    QVERIFY(!hasZoomCursor());
    for (int pixels = 250; pixels > 70; pixels -= 8)
        touch(apart(pixels), Qt::TouchPointMoved);
    touch(apart(70), Qt::TouchPointReleased);
    QTRY_COMPARE(onScreen(), QString("rgbyy"));
}

QTEST_MAIN(TestLiveHands)
#include "tst_livehands.moc"

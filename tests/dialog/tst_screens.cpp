#include "dialog/screen.h"

#include <QTest>

#include <algorithm>

// What every screen shows, without a window and without a camera.
class TestScreens : public QObject
{
    Q_OBJECT

private slots:
    void rowsOfButtons_data();
    void rowsOfButtons();
    void nothingContradictsItself();
    void previewKeepsTheRowBefore();
    void placesOnThreeScreens();

private:
    static QString contradiction(const Situation &now);
    static Screen shown(const Situation &now)
    {
        Screen atStart;
        atStart.hideAllButton();
        return screenFor(now, atStart);
    }
};

static const char *const names[] = {"Live",      "Photo",      "PhotoMulti", "Movie",       "MovieStop",
                                    "List",      "Settings",   "Close",      "Apply",       "Retry",
                                    "MoviePlay", "MoviePause", "Show",       "SwitchPhoto", "SwitchMovie",
                                    "Back",      "Load",       "PutPhoto",   "PutMovie"};

// The buttons that are shown, those of the row first and from left to right, enabled ones with a "+".
static QString buttons(const Screen &screen)
{
    QMap<int, QString> inOrder;
    for (size_t id = 0; id < buttonCount; ++id) {
        const ButtonState &state = screen.buttons[id];
        const bool isInRow = state.slot.kind == Slot::Kind::Row;
        if (state.isShown)
            inOrder[isInRow ? state.slot.index : 100 + int(id)] =
                names[id] + QString(state.isEnabled ? "+" : "");
    }
    return QStringList(inOrder.values()).join(' ');
}

static QString views(const Screen &screen)
{
    const std::pair<const char *, Place> all[] = {
        {"live", screen.live}, {"movie", screen.movie}, {"picture", screen.picture}, {"strip", screen.strip}};
    QStringList seen;
    for (const auto &[name, place] : all) {
        if (place != Place::Hidden)
            seen << name + QString::number(int(place));
    }
    return (screen.hasTimer ? seen << "timer" : seen).join(' ');
}

static Situation in(
    DisplayMode mode, const std::function<void(Situation &)> &change = [](Situation &) {})
{
    Situation now;
    now.mode = mode;
    now.facts.camera.state = CameraState::Live;
    change(now);
    return now;
}

Q_DECLARE_METATYPE(Situation)

void TestScreens::rowsOfButtons_data()
{
    QTest::addColumn<Situation>("now");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("seen");
    QTest::addColumn<QString>("focus");
    const auto add = [](const char *name, const Situation &now, const char *row, const char *seen,
                        const char *focus) {
        QTest::newRow(name) << now << QString(row) << QString(seen) << QString(focus);
    };
    const char *const live = "Live+ Photo+ PhotoMulti+ Movie+ List+ Settings+ Close+";
    const char *const noCamera = "Live Photo PhotoMulti Movie List+ Settings Close+";
    add("live", in(DisplayMode::Live), live, "live8", "Photo");
    add("no such mode", in(DisplayMode(7)), live, "live8", "Photo");
    add("opening", in(DisplayMode::Live, [](auto &s) { s.facts.camera.state = CameraState::Opening; }), live,
        "live8", "Photo");
    for (const CameraState state : {CameraState::None, CameraState::Lost})
        add("no camera", in(DisplayMode::Live, [state](auto &s) { s.facts.camera.state = state; }), noCamera,
            "", "List");
    add("full disk", in(DisplayMode::Live, [](auto &s) { s.isErrorMode = true; }), noCamera, "live8", "List");
    add("a lost camera is tried",
        in(DisplayMode::Live,
           [](auto &s) {
               s.isReturning = s.isErrorMode = true;
               s.facts.camera.state = CameraState::Opening;
           }),
        noCamera, "", "List");
    add("recording", in(DisplayMode::Live, [](auto &s) { s.facts.movie.state = MovieState::Recording; }),
        "Live Photo PhotoMulti MovieStop+ List Settings Close", "live8 timer", "MovieStop");
    add("waiting long", in(DisplayMode::Live, [](auto &s) { s.facts.isHeldUp = true; }),
        "Live Photo PhotoMulti Movie List Settings Close", "live8", "");
    add("movie", in(DisplayMode::Movie), "Live+ MoviePlay+ List+ Close+", "", "MoviePlay");
    add("movie loaded", in(DisplayMode::Movie, [](auto &s) { s.isMovieLoaded = true; }),
        "Live+ MoviePlay+ List+ Close+", "movie1 timer", "MoviePlay");
    add("movie playing", in(DisplayMode::Movie, [](auto &s) { s.isMovieLoaded = s.isPlaying = true; }),
        "Live+ MoviePause+ List+ Close+", "movie1 timer", "MoviePause");
    add("movie not whole",
        in(DisplayMode::Movie, [](auto &s) { s.facts.movie.state = MovieState::Finishing; }),
        "Live+ MoviePlay List+ Close+", "", "Live");
    add("photo", in(DisplayMode::Photo), "Live+ PutPhoto+ List+ Close+", "picture8", "Live");
    add("accepted",
        in(DisplayMode::Photo,
           [](auto &s) {
               s.hasPhotoPreview = true;
               s.variant = Variant::Accepted;
           }),
        "Live+ PutPhoto+ List+ Close+", "picture8", "Live");
    add("list", in(DisplayMode::List), "Live+ Show Load+ SwitchMovie+ Close+", "strip7", "Live");
    add("chosen",
        in(DisplayMode::List, [](auto &s) { s.hasThumbnails = s.hasChoice = s.showsChoice = true; }),
        "Live+ Show+ Load+ SwitchMovie+ Close+", "picture6 strip7", "strip");
    add("movies", in(DisplayMode::List, [](auto &s) { s.offersPhotos = s.isErrorMode = true; }),
        "Live+ Show Load+ SwitchPhoto+ Close+", "strip7", "Live");
    add("strip", in(DisplayMode::Series), live, "live4 picture5 strip7", "Photo");
    add("series", in(DisplayMode::Series, [](auto &s) { s.isSeriesRunning = s.isTimed = true; }),
        "Live+ Photo PhotoMulti+ Movie List Close", "live4 picture5 strip7 timer", "PhotoMulti");
    add("series, full disk",
        in(DisplayMode::Series, [](auto &s) { s.isSeriesRunning = s.isErrorMode = true; }),
        "Live Photo PhotoMulti Movie List+ Close", "live4 picture5 strip7", "List");
    add("grid", in(DisplayMode::Series, [](auto &s) { s.variant = Variant::Grid; }),
        "Live+ PutPhoto+ List+ Close+", "", "Live");
}

void TestScreens::rowsOfButtons()
{
    QFETCH(Situation, now);
    QFETCH(QString, row);
    QFETCH(QString, seen);
    QFETCH(QString, focus);
    const Screen screen = shown(now);
    QCOMPARE(buttons(screen), row);
    QCOMPARE(views(screen), seen);
    QCOMPARE(screen.isStripFocused ? "strip" : screen.focus ? names[int(*screen.focus)] : "", focus);
}

static Situation situationOf(int bits)
{
    Situation now;
    now.isErrorMode = bits & 1;
    now.hasPhotoPreview = bits & 2;
    now.isSeriesRunning = bits & 4;
    now.isTimed = now.hasThumbnails = bits & 8;
    now.isMovieLoaded = now.showsChoice = bits & 16;
    now.isPlaying = bits & 32;
    now.offersPhotos = bits & 64;
    now.hasChoice = bits & 128;
    now.facts.isHeldUp = bits & 256;
    now.isReturning = bits & 512;
    return now;
}

// Empty when there is none.
QString TestScreens::contradiction(const Situation &now)
{
    const Screen screen = shown(now);
    const auto canPress = [&](Button id) { return screen[id].isShown && screen[id].isEnabled; };
    const auto areBothShown = [&](Button a, Button b) { return screen[a].isShown && screen[b].isShown; };
    if (!screen[Button::Close].isShown || screen[Button::Back].isShown)
        return "leaving";
    if (screen.focus && !canPress(*screen.focus))
        return "focus on what cannot be pressed";
    if ((canPress(Button::Photo) || canPress(Button::Movie) || screen.live != Place::Hidden) &&
        !now.hasCamera())
        return "no camera";
    if (areBothShown(Button::MoviePlay, Button::MoviePause) ||
        areBothShown(Button::MovieStop, Button::Movie) ||
        areBothShown(Button::SwitchPhoto, Button::SwitchMovie))
        return "two in one slot";
    // Somewhere it goes on, unless something is waited for.
    if (!screen.focus && !now.facts.isHeldUp && now.facts.photo.state != PhotoState::Pending)
        return "nowhere to go on";
    // Made once more from itself, a screen is the same.
    const Screen again = screenFor(now, screen);
    const bool isSame = std::equal(screen.buttons.begin(), screen.buttons.end(), again.buttons.begin(),
                                   [](const ButtonState &a, const ButtonState &b) {
                                       return a.isShown == b.isShown && a.isEnabled == b.isEnabled;
                                   });
    return isSame ? QString() : "not the same when it is made again";
}

// Every mode with every combination of what matters.
void TestScreens::nothingContradictsItself()
{
    const CameraState cameras[] = {CameraState::Unknown, CameraState::None, CameraState::Opening,
                                   CameraState::Live, CameraState::Lost};
    const MovieState movies[] = {MovieState::None, MovieState::Recording, MovieState::Ended,
                                 MovieState::Finishing};
    const PhotoState photos[] = {PhotoState::None, PhotoState::Pending, PhotoState::Failed};
    for (const int mode : {0, 1, 2, 3, 4, 7}) {
        for (int bits = 0; bits < 1 << 10; ++bits) {
            for (const Variant variant : {Variant::Usual, Variant::Accepted, Variant::Grid}) {
                for (const CameraState camera : cameras) {
                    for (const MovieState movie : movies) {
                        for (const PhotoState photo : photos) {
                            Situation now = situationOf(bits);
                            now.mode = DisplayMode(mode);
                            now.variant = variant;
                            now.facts.camera.state = camera;
                            now.facts.movie.state = movie;
                            now.facts.photo.state = photo;
                            const QString wrong = contradiction(now);
                            if (!wrong.isEmpty())
                                QFAIL(qPrintable(
                                    QString("mode %1, bits %2: %3").arg(mode).arg(bits).arg(wrong)));
                        }
                    }
                }
            }
        }
    }
}

void TestScreens::previewKeepsTheRowBefore()
{
    Situation now = in(DisplayMode::Photo, [](auto &s) { s.hasPhotoPreview = true; });
    const Screen list = shown(in(DisplayMode::List));
    QCOMPARE(buttons(screenFor(now, list)),
             QString("Live Show Load+ SwitchMovie Settings Close Apply+ Retry+"));
    const Screen live = shown(in(DisplayMode::Live));
    const QString row = "Live Photo PhotoMulti Movie List Settings Close ";
    QCOMPARE(buttons(screenFor(now, live)), row + "Apply+ Retry+");
    QCOMPARE(views(screenFor(now, live)), QString("live2 picture3"));
    // Nothing is offered before the file is whole.
    now.facts.photo.state = PhotoState::Pending;
    QCOMPARE(buttons(screenFor(now, live)), row + "Apply Retry");
}

// Worked out by hand from the sizes of the screen, of its buttons and of the camera's picture.
void TestScreens::placesOnThreeScreens()
{
    const Layout small{{1024, 768}, {170, 68}, {170, 34}, {1920, 1080}};
    QCOMPARE(small.rectOf(Slot{Slot::Kind::Row, 0, 5}), QRect(2, 700, 170, 68));
    QCOMPARE(small.rectOf(Slot{Slot::Kind::Row, 3, 3}), QRect(682, 700, 170, 68));
    QCOMPARE(small.rectOf(Slot{Slot::Kind::AboveLeft}), QRect(342, 632, 170, 68));
    QCOMPARE(small.rectOf(Slot{Slot::Kind::AboveRight}), QRect(512, 632, 170, 68));
    QCOMPARE(small.rectOf(Place::Whole), QRect(0, 0, 1024, 576));
    QCOMPARE(small.rectOf(Place::LeftHalf), QRect(0, 172, 512, 288));
    QCOMPARE(small.rectOf(Place::RightHalf), QRect(512, 172, 512, 288));
    QCOMPARE(small.rectOf(Place::Strip), QRect(0, 560, 1024, 140));
    QCOMPARE(small.rectOf(Place::SeriesLive), QRect(0, 136, 512, 288));
    QCOMPARE(small.rectOf(Place::SeriesPhoto), QRect(512, 136, 512, 288));
    QCOMPARE(small.rectOf(Place::ChosenPhoto), QRect(125, 0, 775, 436).translated(-1, 0));

    // The live picture turned by a quarter; photos and movies keep their places.
    Layout upright = small;
    upright.isUpright = true;
    QCOMPARE(small.rectOf(Place::Live), small.rectOf(Place::Whole));
    QCOMPARE(upright.rectOf(Place::Whole), small.rectOf(Place::Whole));
    QCOMPARE(upright.rectOf(Place::Live), QRect(315, 0, 393, 700));
    QCOMPARE(upright.rectOf(Place::LeftHalf), QRect(157, 0, 355, 632));
    QCOMPARE(upright.rectOf(Place::RightHalf), QRect(512, 0, 355, 632));
    QCOMPARE(upright.rectOf(Place::SeriesLive), QRect(99, 0, 314, 560));
    QCOMPARE(upright.rectOf(Place::ChosenPhoto), small.rectOf(Place::ChosenPhoto));

    const Layout wide{{2560, 1080}, {240, 96}, {240, 48}, {640, 480}};
    QCOMPARE(wide.rectOf(Place::Whole), QRect(624, 0, 1312, 984));
    QCOMPARE(wide.rectOf(Place::LeftHalf), QRect(0, -36, 1280, 960));
    QCOMPARE(wide.rectOf(Slot{Slot::Kind::AboveRight}), QRect(1280, 888, 240, 96));

    const Layout noCamera{{1920, 1080}, {240, 96}, {240, 48}, {0, 0}};
    QCOMPARE(noCamera.rectOf(Place::Whole), QRect(468, 0, 984, 984));
    QCOMPARE(noCamera.rectOf(Place::LeftHalf), QRect(0, -36, 960, 960));
}

QTEST_GUILESS_MAIN(TestScreens)
#include "tst_screens.moc"

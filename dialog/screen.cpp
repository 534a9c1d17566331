#include "dialog/screen.h"

#include <initializer_list>
#include <vector>

namespace
{

constexpr int liveRowButtons = 5;
constexpr int otherRowButtons = 3;

struct Item {
    Button button;
    bool isShown;
    bool isEnabled;
};

Item on(Button button, bool isEnabled = true)
{
    return {button, true, isEnabled};
}

Item hidden(Button button, bool isEnabled = false)
{
    return {button, false, isEnabled};
}

// A row at the bottom edge from left to right, its slots with the buttons that share them, and the buttons
// that stand elsewhere. Any other is hidden and disabled.
struct ButtonRow {
    int centredOn; // so many slots
    std::vector<std::vector<Item>> inRow;
    std::vector<Item> beside;
};

ButtonRow setLivemodeButtonEnabled(const Situation &now)
{
    const bool isOn = now.hasCamera();
    return {liveRowButtons,
            {{on(Button::Live, isOn)},
             {on(Button::Photo, isOn)},
             {on(Button::PhotoMulti, isOn)},
             {hidden(Button::MovieStop), on(Button::Movie, isOn)},
             {on(Button::List)}},
            {on(Button::Close), on(Button::Settings, isOn)}};
}

ButtonRow recordingButtons(const Situation &)
{
    return {liveRowButtons,
            {{on(Button::Live, false)},
             {on(Button::Photo, false)},
             {on(Button::PhotoMulti, false)},
             {on(Button::MovieStop), hidden(Button::Movie)},
             {on(Button::List, false)}},
            {on(Button::Close, false), on(Button::Settings, false)}};
}

ButtonRow seriesButtons(const Situation &)
{
    return {liveRowButtons,
            {{on(Button::Live)},
             {on(Button::Photo, false)},
             {on(Button::PhotoMulti)},
             {hidden(Button::MovieStop), on(Button::Movie, false)},
             {on(Button::List, false)}},
            {on(Button::Close, false)}};
}

ButtonRow setPhotoModeButtonEnabled(const Situation &)
{
    return {otherRowButtons,
            {{on(Button::Live)}, {on(Button::PutPhoto)}, {on(Button::List)}},
            {on(Button::Close)}};
}

ButtonRow setMovieModeButton(const Situation &now)
{
    const bool isWhole = now.isMovieLoaded || now.facts.movie.state != MovieState::Finishing;
    return {otherRowButtons,
            {{on(Button::Live)},
             {{Button::MoviePause, now.isPlaying, true}, {Button::MoviePlay, !now.isPlaying, isWhole}},
             {on(Button::List)}},
            {on(Button::Close)}};
}

ButtonRow setListButton(const Situation &now)
{
    const Button other = now.offersPhotos ? Button::SwitchPhoto : Button::SwitchMovie;
    return {otherRowButtons,
            {{on(Button::Live)}, {on(Button::Show, now.hasChoice)}, {on(Button::Load)}, {on(other)}},
            {on(Button::Close)}};
}

ButtonRow setShowModeButton(const Situation &)
{
    return {otherRowButtons,
            {{on(Button::Live)}, {on(Button::PutPhoto)}, {on(Button::List)}},
            {on(Button::Close)}};
}

using Condition = bool (*)(const Situation &);

bool always(const Situation &)
{
    return true;
}
bool isRecording(const Situation &now)
{
    return now.facts.isMovieRunning();
}
bool hasCamera(const Situation &now)
{
    return now.hasCamera();
}

// A view's place, where it is shown at all.
struct View {
    Place place = Place::Hidden;
    Condition isShown = always;
};

struct ScreenRow {
    Condition isMeant;
    View live, movie, picture, strip;
    Condition hasTimer;
    ButtonRow (*buttons)(const Situation &); // null: those of the screen before, without effect
};

bool is(DisplayMode mode, const Situation &now)
{
    return now.mode == mode;
}

// The first that is meant. A new screen is a new row.
const ScreenRow screens[] = {
    {[](const Situation &now) { return is(DisplayMode::Movie, now); },
     {},
     {Place::Whole, [](const Situation &now) { return now.isMovieLoaded; }},
     {},
     {},
     [](const Situation &now) { return now.isMovieLoaded; },
     setMovieModeButton},

    {[](const Situation &now) {
         return is(DisplayMode::Photo, now) && now.hasPhotoPreview && now.variant != Variant::Accepted;
     },
     {Place::LeftHalf, hasCamera},
     {},
     {Place::RightHalf},
     {},
     nullptr,
     nullptr},

    {[](const Situation &now) { return is(DisplayMode::Photo, now); },
     {},
     {},
     {Place::Live}, // the photo is as the live picture was
     {},
     nullptr,
     setPhotoModeButtonEnabled},

    {[](const Situation &now) { return is(DisplayMode::List, now); },
     {},
     {},
     {Place::ChosenPhoto, [](const Situation &now) { return now.showsChoice; }},
     {Place::Strip},
     nullptr,
     setListButton},

    {[](const Situation &now) { return is(DisplayMode::Series, now) && now.variant == Variant::Grid; },
     {},
     {},
     {},
     {},
     nullptr,
     setShowModeButton},

    {[](const Situation &now) { return is(DisplayMode::Series, now) && now.isSeriesRunning; },
     {Place::SeriesLive, hasCamera},
     {},
     {Place::SeriesPhoto},
     {Place::Strip},
     [](const Situation &now) { return now.isTimed; },
     seriesButtons},

    {[](const Situation &now) { return is(DisplayMode::Series, now); },
     {Place::SeriesLive, hasCamera},
     {},
     {Place::SeriesPhoto},
     {Place::Strip},
     nullptr,
     setLivemodeButtonEnabled},

    // A value that is no mode is the live screen too.
    {isRecording, {Place::Live, hasCamera}, {}, {}, {}, isRecording, recordingButtons},

    {always, {Place::Live, hasCamera}, {}, {}, {}, nullptr, setLivemodeButtonEnabled},
};

Place placeOf(const View &view, const Situation &now)
{
    return view.isShown(now) ? view.place : Place::Hidden;
}

void placeButtons(Screen *screen, const ButtonRow &row)
{
    screen->hideAllButton();
    screen->disableAllButton(false);
    int index = 0;
    for (const std::vector<Item> &sharing : row.inRow) {
        for (const Item &item : sharing)
            (*screen)[item.button] = {{Slot::Kind::Row, index, row.centredOn}, item.isShown, item.isEnabled};
        ++index;
    }
    for (const Item &item : row.beside)
        (*screen)[item.button] = {{}, item.isShown, item.isEnabled};
}

// The photo is to be accepted or taken again. The row of the screen before stays, but only for the eye.
void setLivePhotoModeButtonEnabled(Screen *screen, const Situation &now)
{
    screen->disableAllButton(false);
    const bool isWhole = now.facts.photo.state != PhotoState::Pending;
    (*screen)[Button::Apply] = {{Slot::Kind::AboveLeft}, true, isWhole};
    (*screen)[Button::Retry] = {{Slot::Kind::AboveRight}, true, isWhole};
    (*screen)[Button::Live].isShown = true;
    (*screen)[Button::Settings].isShown = true;
    (*screen)[Button::Close].isEnabled = false;
}

// What still leads somewhere without a camera or without room.
void setErrModeButtonEnable(Screen *screen)
{
    screen->disableAllButton(false);
    for (const Button button : {Button::List, Button::SwitchMovie, Button::SwitchPhoto, Button::Show})
        (*screen)[button].isEnabled = true;
}

bool showsErrors(const Situation &now)
{
    const bool isReview = now.mode == DisplayMode::Movie || now.mode == DisplayMode::Photo ||
                          now.mode == DisplayMode::List || now.variant == Variant::Grid;
    return now.isErrorMode && !isReview && !now.facts.isMovieRunning() &&
           (now.mode != DisplayMode::Series || now.isSeriesRunning);
}

void setFocus(Screen *screen, const Situation &now)
{
    screen->isStripFocused =
        screen->strip != Place::Hidden && now.mode == DisplayMode::List && now.hasThumbnails;
    screen->focus.reset();
    for (const Button button :
         {Button::Apply, Button::Photo, Button::MovieStop, Button::MoviePause, Button::MoviePlay,
          Button::PhotoMulti, Button::Live, Button::List, Button::Close}) {
        const ButtonState &state = (*screen)[button];
        if (!screen->focus && state.isShown && state.isEnabled)
            screen->focus = button;
    }
}

} // namespace

void Screen::hideAllButton()
{
    for (ButtonState &state : buttons)
        state.isShown = &state == &(*this)[Button::Close];
}

void Screen::disableAllButton(bool enabled)
{
    for (ButtonState &state : buttons) {
        if (&state != &(*this)[Button::Close] && &state != &(*this)[Button::Back] &&
            &state != &(*this)[Button::Load])
            state.isEnabled = enabled;
    }
}

Screen screenFor(const Situation &situation, const Screen &before)
{
    const ScreenRow *row = screens;
    while (!row->isMeant(situation))
        ++row;
    Screen screen = before;
    screen.live = placeOf(row->live, situation);
    screen.movie = placeOf(row->movie, situation);
    screen.picture = placeOf(row->picture, situation);
    screen.strip = placeOf(row->strip, situation);
    screen.hasTimer = row->hasTimer && row->hasTimer(situation);
    screen.isWatched =
        screen.live != Place::Hidden || screen.movie != Place::Hidden || isRecording(situation);
    if (row->buttons)
        placeButtons(&screen, row->buttons(situation));
    else
        setLivePhotoModeButtonEnabled(&screen, situation);
    if (showsErrors(situation))
        setErrModeButtonEnable(&screen);
    if (situation.facts.isHeldUp) {
        for (ButtonState &state : screen.buttons)
            state.isEnabled = false;
    }
    setFocus(&screen, situation);
    return screen;
}

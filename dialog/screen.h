#pragma once

#include "capture/capturefacts.h"
#include "dialog/layout.h"

#include <array>
#include <optional>

// The screens of the main window.
enum class DisplayMode : int {
    Live = 0,
    Movie = 1,
    Photo = 2, // the photo just taken
    List = 3,
    Series = 4 // a continuous series; also the grid of photos
};

// What a mode shows where it has two screens.
enum class Variant {
    Usual,
    Accepted, // of Photo: the photo alone, whether or not the setting wants a preview beside the live picture
    Grid      // of Series: the grid of photos
};

// The buttons, in the order of their making.
enum class Button {
    Live,
    Photo,
    PhotoMulti,
    Movie,
    MovieStop,
    List,
    Settings,
    Close,
    Apply,
    Retry,
    MoviePlay,
    MoviePause,
    Show,
    SwitchPhoto,
    SwitchMovie,
    Back,
    Load,
    PutPhoto,
    PutMovie
};
constexpr size_t buttonCount = size_t(Button::PutMovie) + 1;

// All that a screen depends on.
struct Situation {
    DisplayMode mode = DisplayMode::Live;
    Variant variant = Variant::Usual;
    Facts facts;
    bool isErrorMode = false;     // it was told that there is no camera, or no room on the disk
    bool isReturning = false;     // a lost camera is being tried again, and there is nothing to see of it
    bool hasPhotoPreview = false; // the setting
    bool isSeriesRunning = false;
    bool isTimed = false; // the series
    bool isMovieLoaded = false;
    bool isPlaying = false;
    bool offersPhotos = false; // the list, which shows movies
    bool hasThumbnails = false;
    bool hasChoice = false;   // something is chosen in the list
    bool showsChoice = false; // something has been, since it was filled

    bool hasCamera() const
    {
        return facts.hasCamera() && !(isReturning && facts.camera.state != CameraState::Live);
    }
};

struct ButtonState {
    Slot slot;
    bool isShown = false;
    bool isEnabled = true;
};

// What the main window shows: the places of its views, and its buttons.
struct Screen {
    Place live = Place::Hidden;
    Place movie = Place::Hidden;
    Place picture = Place::Hidden;
    Place strip = Place::Hidden;
    bool hasTimer = false;
    bool isWatched = false; // something moves on it, so that it must not go dark
    bool isStripFocused = false;
    std::optional<Button> focus; // the button that is most likely pressed next
    std::array<ButtonState, buttonCount> buttons;

    ButtonState &operator[](Button button) { return buttons[size_t(button)]; }
    const ButtonState &operator[](Button button) const { return buttons[size_t(button)]; }

    // Hides every button but the one for leaving.
    void hideAllButton();
    // Leaving stays as it is, and so do the two buttons that are only ever there to be pressed.
    void disableAllButton(bool enabled);
};

// The screen for a situation. Of the screen before, a photo's preview keeps the row of buttons for the eye.
Screen screenFor(const Situation &situation, const Screen &before);

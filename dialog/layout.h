#pragma once

#include <QRect>
#include <QSize>
#include <QVector>

// Where a view stands in the main window.
enum class Place {
    Hidden,
    Whole,       // all that the row of buttons leaves, in the camera's proportions
    LeftHalf,    // a photo's live picture beside it
    RightHalf,   // the photo
    SeriesLive,  // the same two above the strip
    SeriesPhoto, //
    ChosenPhoto, // above the list
    Strip,       // the thumbnails
    Live         // as Whole, in the proportions of the live picture, which may be turned
};

// Where a button stands.
struct Slot {
    enum class Kind {
        AsItIs,
        Row,       // at that index of a row centred as if it held so many
        AboveLeft, // the two side by side above the row
        AboveRight
    };
    Kind kind = Kind::AsItIs;
    int index = 0;
    int centredOn = 0;
};

// The main window's geometry: everything follows from these sizes, all in pixels. What is computed in
// fractions is truncated toward zero.
struct Layout {
    QSize screen; // the window
    QSize rowButton;
    QSize closeButton;      // stands at the right end of the row
    QSize native;           // the camera's picture; anything without pixels counts as a square
    bool isUpright = false; // the live picture: turned by a quarter, or by three

    QRect rectOf(Place place) const;
    QRect rectOf(const Slot &slot) const;

private:
    int rowTop() const { return screen.height() - rowButton.height(); }
    int stripTop() const;
    QSize scaledNative(const QSize &box) const;
    QSize scaledLive(const QSize &box) const;
    QRect atTop(const QSize &picture) const;
    QRect whole() const;
    QRect live() const;
    QRect leftHalf() const;
    QRect rightHalf() const;
    QRect inSeries(double left) const;
    QRect chosenPhoto() const;
    QRect strip() const;
};

// The places of count photos, up to nine, side by side within area, row by row: up to three in one row, four
// in two rows of two, more in rows of three.
QVector<QRect> gridTiles(const QRect &area, int count);

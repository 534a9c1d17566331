#include "dialog/layout.h"

#include <QPoint>

namespace
{

// The strip of thumbnails takes this part of the height above the row.
constexpr double stripsPerHeight = 5.0;

struct Cells {
    int rows;
    int columns;
    double width;
    double height;
};

// Photos in a single row keep the proportions of the area whatever remains of a division; a block of rows is
// made of whole pixels.
Cells cellsFor(const QSize &area, int count)
{
    constexpr int mostInOneRow = 3;
    constexpr int square = 4;
    if (count <= mostInOneRow)
        return {1, count, double(area.width()) / count, double(area.height()) / count};
    const int columns = count == square ? 2 : mostInOneRow;
    const int rows = (count + columns - 1) / columns;
    const int width = area.width() / columns;
    const int height = area.height() / columns;
    return {rows, columns, double(width), double(height)};
}

} // namespace

QRect Layout::rectOf(Place place) const
{
    switch (place) {
    case Place::Whole:
        return whole();
    case Place::Live:
        return live();
    case Place::LeftHalf:
        return leftHalf();
    case Place::RightHalf:
        return rightHalf();
    case Place::SeriesLive:
        return inSeries(0);
    case Place::SeriesPhoto:
        return inSeries(screen.width() * 0.5);
    case Place::ChosenPhoto:
        return chosenPhoto();
    case Place::Strip:
        return strip();
    case Place::Hidden:
        break;
    }
    return {};
}

// Rows are centred in what the button for leaving leaves free.
QRect Layout::rectOf(const Slot &slot) const
{
    const double middle = screen.width() * 0.5;
    const int above = rowTop() - rowButton.height();
    switch (slot.kind) {
    case Slot::Kind::Row: {
        const int half = (rowButton.width() * slot.centredOn) / 2;
        const double first = (screen.width() - closeButton.width()) * 0.5 - half;
        return {QPoint(int(first + slot.index * rowButton.width()), rowTop()), rowButton};
    }
    case Slot::Kind::AboveLeft:
        return {QPoint(int(middle - rowButton.width()), above), rowButton};
    case Slot::Kind::AboveRight:
        return {QPoint(int(middle), above), rowButton};
    case Slot::Kind::AsItIs:
        break;
    }
    return {};
}

QSize Layout::scaledNative(const QSize &box) const
{
    const bool isPicture = native.width() > 0 && native.height() > 0;
    return (isPicture ? native : QSize(1, 1)).scaled(box, Qt::KeepAspectRatio);
}

// Turned, the picture fits as the picture before turning fits into the turned box.
QSize Layout::scaledLive(const QSize &box) const
{
    return isUpright ? scaledNative(box.transposed()).transposed() : scaledNative(box);
}

QRect Layout::atTop(const QSize &picture) const
{
    return {QPoint(int((screen.width() - picture.width()) * 0.5), 0), picture};
}

QRect Layout::whole() const
{
    return atTop(scaledNative(QSize(screen.width(), rowTop())));
}

QRect Layout::live() const
{
    return atTop(scaledLive(QSize(screen.width(), rowTop())));
}

// An upright one would reach under the buttons above the row, and stand far from the photo's.
QRect Layout::leftHalf() const
{
    const double halfWidth = screen.width() * 0.5;
    const int height = isUpright ? rowTop() - rowButton.height() : rowTop();
    const QSize half = scaledLive(QSize(int(halfWidth), height));
    const double left = isUpright ? halfWidth - half.width() : 0;
    const double top = (screen.height() - 2 * rowButton.height() - half.height()) * 0.5;
    return {QPoint(int(left), int(top)), half};
}

QRect Layout::rightHalf() const
{
    const QRect left = leftHalf();
    QRect mirrored = left;
    mirrored.setLeft(left.right() + 1);
    mirrored.setRight(2 * (left.right() + 1) - left.left() - 1);
    return mirrored;
}

int Layout::stripTop() const
{
    return int(screen.height() - (rowButton.height() + rowTop() / stripsPerHeight));
}

QRect Layout::strip() const
{
    return {0, stripTop(), screen.width(), int(rowTop() / stripsPerHeight)};
}

QRect Layout::inSeries(double left) const
{
    const double halfWidth = screen.width() * 0.5;
    const QSize fitted = live().size().scaled(int(halfWidth), stripTop(), Qt::KeepAspectRatio);
    const double x = left + (halfWidth - fitted.width()) * 0.5;
    return {QPoint(int(x), int((stripTop() - fitted.height()) * 0.5)), fitted};
}

QRect Layout::chosenPhoto() const
{
    const QSize area = whole().size();
    const int height = area.height() - strip().height();
    const int width = area.width() * height / qMax(1, area.height());
    return {int((screen.width() - width) * 0.5), 0, width, height};
}

QVector<QRect> gridTiles(const QRect &area, int count)
{
    if (count < 1)
        return {};
    const Cells cells = cellsFor(area.size(), count);
    const int half = area.height() / 2;
    const int top = int(half - cells.rows * cells.height * 0.5);
    QVector<QRect> tiles;
    for (int index = 0; index < count; ++index) {
        const int row = index / cells.columns;
        const int column = index % cells.columns;
        tiles.append(QRect(int(area.left() + column * cells.width), int(top + row * cells.height),
                           int(cells.width), int(cells.height)));
    }
    return tiles;
}

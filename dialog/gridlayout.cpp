#include "dialog/gridlayout.h"

namespace
{

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

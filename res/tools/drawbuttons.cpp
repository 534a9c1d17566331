// drawbuttons ART_FOLDER OUTPUT_FOLDER: draws every command button in its three states, a plate with the
// button's pictogram on it, as NAME_up.bmp, NAME_dw.bmp and NAME_ds.bmp.

#include "res/tools/svgart.h"

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>

namespace
{

// Five row buttons and the column at their right take 6 x 240 = 1440 pixels, so that nothing is scaled from
// there on; narrower screens shrink a button to a sixth of their width. Settings and Close share the height
// of one row button, one above the other. The tile buttons lie on photos and must not hide much of them.
const QSize RowSize(240, 96);
const QSize HalfSize(240, 48);
const QSize TileSize(88, 64);

// In pixels. The edge is wide enough to survive scaling to 170 pixels by leaving out pixels.
constexpr int Gap = 2; // keeps neighbours apart
constexpr int EdgeWidth = 3;
constexpr int Push = 2; // how far a pressed pictogram moves down

struct Button {
    const char *name;
    QSize size;
};

const Button Buttons[] = {
    {"Apply", RowSize},     {"Back", TileSize},       {"Close", HalfSize},      {"List", RowSize},
    {"Live", RowSize},      {"Load", RowSize},        {"Movie", RowSize},       {"MoviePause", RowSize},
    {"MoviePlay", RowSize}, {"MovieStop", RowSize},   {"Photo", RowSize},       {"PhotoMulti", RowSize},
    {"PutMovie", RowSize},  {"PutPhoto", RowSize},    {"Retry", RowSize},       {"Settings", HalfSize},
    {"Show", RowSize},      {"SwitchMovie", RowSize}, {"SwitchPhoto", RowSize}, {"Zoom", TileSize},
};

struct State {
    const char *ending;
    QColor top, bottom; // the plate's shading
    QColor edge;
    int push;
    bool grey;
};

// White captions stay readable on every plate. A pressed plate is lit and shaded the other way round.
const State States[] = {
    {"_up.bmp", QColor(0x3a4d78), QColor(0x1d2947), QColor(0x7088bd), 0, false},
    {"_dw.bmp", QColor(0x1f63c9), QColor(0x3f8df0), QColor(0xffffff), Push, false},
    {"_ds.bmp", QColor(0x4a4a4d), QColor(0x4a4a4d), QColor(0x626266), 0, true},
};

void drawPlate(QPainter &painter, const QRect &area, const State &state)
{
    constexpr qreal Radius = 10;
    const qreal inset = Gap + EdgeWidth / 2.0;
    const QRectF plate = QRectF(area).adjusted(inset, inset, -inset, -inset);
    QLinearGradient shade(plate.topLeft(), plate.bottomLeft());
    shade.setColorAt(0, state.top);
    shade.setColorAt(1, state.bottom);
    painter.setBrush(shade);
    painter.setPen(QPen(state.edge, EdgeWidth));
    painter.drawRoundedRect(plate, Radius, Radius);
}

// The pictogram in dull greys, light parts still lighter than dark ones.
QImage greyed(const QImage &coloured)
{
    constexpr int Darkest = 0x38;
    constexpr int Lightest = 0x96;
    QImage grey = coloured.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < grey.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(grey.scanLine(y));
        for (int x = 0; x < grey.width(); ++x) {
            const int level = Darkest + qGray(line[x]) * (Lightest - Darkest) / 255;
            line[x] = qRgba(level, level, level, qAlpha(line[x]));
        }
    }
    return grey;
}

// A caption lies over the right three fifths; a tile button has none and carries its picture in the middle.
QRect pictogramArea(const QSize &button)
{
    constexpr int SideMargin = 6;
    constexpr int PlateBorder = Gap + EdgeWidth + Push;
    const int width = button == TileSize ? button.width() : button.width() * 2 / 5;
    // The drawings keep a twelfth of their side free all around, which may lie over the plate's edge.
    const int side = qMin(width - 2 * SideMargin, (button.height() - 2 * PlateBorder) * 12 / 10);
    return {(width - side) / 2, (button.height() - side) / 2, side, side};
}

QImage drawButton(const Button &button, const State &state, const QString &art)
{
    QImage picture(button.size, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPlate(painter, picture.rect(), state);
    const QRect area = pictogramArea(button.size);
    const QString file = art + QLatin1Char('/') + QString::fromLatin1(button.name).toLower() + ".svg";
    const QImage pictogram = drawSvg(file, area.width());
    painter.drawImage(area.topLeft() + QPoint(0, state.push), state.grey ? greyed(pictogram) : pictogram);
    return picture;
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        qFatal("usage: drawbuttons ART_FOLDER OUTPUT_FOLDER");
    for (const Button &button : Buttons)
        for (const State &state : States)
            savePicture(drawButton(button, state, arguments[1]),
                        arguments[2] + QLatin1Char('/') + button.name + state.ending);
    return 0;
}

// drawbuttons ART_FOLDER OUTPUT_FOLDER: draws every command button in its three states as NAME_up.bmp,
// NAME_dw.bmp and NAME_ds.bmp.

#include "res/drawing/button.h"
#include "savepicture.h"

#include <QGuiApplication>

namespace
{

// Five row buttons and the column at their right take 6 x 240 = 1440 pixels, so that nothing is scaled from
// there on; narrower screens shrink a button to a sixth of their width. Settings and Close share the height
// of one row button, one above the other. The tile buttons lie on photos and must not hide much of them.
const QSize RowSize(240, 96);
const QSize HalfSize(240, 48);

struct Button {
    const char *name;
    QSize size;
};

const Button Buttons[] = {
    {"Apply", RowSize},     {"Back", tileButtonSize}, {"Close", HalfSize},      {"List", RowSize},
    {"Live", RowSize},      {"Load", RowSize},        {"Movie", RowSize},       {"MoviePause", RowSize},
    {"MoviePlay", RowSize}, {"MovieStop", RowSize},   {"Photo", RowSize},       {"PhotoMulti", RowSize},
    {"PutMovie", RowSize},  {"PutPhoto", RowSize},    {"Retry", RowSize},       {"Settings", HalfSize},
    {"Show", RowSize},      {"SwitchMovie", RowSize}, {"SwitchPhoto", RowSize}, {"Zoom", tileButtonSize},
};

struct State {
    const char *ending;
    PlateState plate;
};

const State States[] = {
    {"_up.bmp", PlateState::Up}, {"_dw.bmp", PlateState::Down}, {"_ds.bmp", PlateState::Disabled}};

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        qFatal("usage: drawbuttons ART_FOLDER OUTPUT_FOLDER");
    for (const Button &button : Buttons) {
        const QString name = QString::fromLatin1(button.name);
        const QString drawing = arguments[1] + QLatin1Char('/') + name.toLower() + ".svg";
        for (const State &state : States)
            savePicture(drawButton(drawing, button.size, state.plate, 1),
                        arguments[2] + QLatin1Char('/') + name + state.ending);
    }
    return 0;
}

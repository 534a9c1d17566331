#include "util/desktop/screenscale.h"

#include <QGuiApplication>

#include <cstdlib>

// Last: Xlib's macros break Qt's headers.
#include <X11/Xlib.h>

namespace
{

constexpr int unscaled = 96;     // pixels an inch
constexpr int leastHeight = 420; // pixels at that density, for the settings window and its frame
const char *const qtDensity = "QT_FONT_DPI";

// What the desktop has been set to, as far as the largest dialog still fits on the screen. Nothing smaller
// counts, nor what the X server believes about a screen that nobody has set a scale for: it may know the
// width of a wall, and every letter would be made tiny for it.
int desktopDensity()
{
    Display *display = XOpenDisplay(nullptr);
    if (!display)
        return unscaled;
    const char *chosen = XGetDefault(display, "Xft", "dpi");
    const int density = chosen ? int(std::strtod(chosen, nullptr)) : unscaled;
    const int most = unscaled * XDisplayHeight(display, XDefaultScreen(display)) / leastHeight;
    XCloseDisplay(display);
    return qMax(unscaled, qMin(density, most));
}

} // namespace

void followScreenScale()
{
    if (!qEnvironmentVariableIsSet(qtDensity))
        qputenv(qtDensity, QByteArray::number(desktopDensity()));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

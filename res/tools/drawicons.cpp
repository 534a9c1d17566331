// drawicons ART_FOLDER OUTPUT_FOLDER SIZE...: draws the application's icons and the zoom cursor. Those of the
// icon theme are made for each size in pixels, in the theme's folders.

#include "res/drawing/svg.h"
#include "savepicture.h"

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QGuiApplication>

namespace
{

QByteArray png(const QImage &picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, "PNG"))
        qFatal("a picture cannot be made a PNG");
    return bytes;
}

// An icon file with one PNG entry a size. Qt's own writer knows one size only.
void saveIcon(const QString &drawing, const QVector<int> &sides, const QString &file)
{
    constexpr int HeaderBytes = 6;
    constexpr int EntryBytes = 16;
    QByteArray directory;
    QByteArray pictures;
    QDataStream out(&directory, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(1) << quint16(sides.size()); // reserved, kind "icon", entries
    for (const int side : sides) {
        const QByteArray picture = png(drawSvg(drawing, side));
        const int offset = HeaderBytes + sides.size() * EntryBytes + pictures.size();
        out << quint8(side) << quint8(side) // 256 is written as 0
            << quint8(0) << quint8(0)       // no palette, reserved
            << quint16(1) << quint16(32)    // planes, bits a pixel
            << quint32(picture.size()) << quint32(offset);
        pictures += picture;
    }
    QFile icon(file);
    if (!icon.open(QIODevice::WriteOnly) || icon.write(directory + pictures) < 0 || !icon.flush())
        qFatal("%s: cannot be written", qPrintable(file));
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4)
        qFatal("usage: drawicons ART_FOLDER OUTPUT_FOLDER SIZE...");
    const QString appIcon = arguments[1] + "/appicon.svg";
    const QString &output = arguments[2];
    QVector<int> sides;
    for (const QString &size : arguments.mid(3))
        sides.append(size.toInt());
    saveIcon(appIcon, sides, output + "/Pictorel.ico");
    savePicture(drawSvg(appIcon, 64), output + "/Pictorel.png");
    savePicture(drawSvg(appIcon, 256), output + "/appicon.png");
    for (const int side : sides)
        savePicture(drawSvg(appIcon, side), output + QString("/hicolor/%1x%1/apps/orvane.png").arg(side));
    savePicture(drawSvg(arguments[1] + "/zoom_cursor.svg", 48), output + "/zoom_cursor.png");
    return 0;
}

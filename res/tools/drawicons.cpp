// drawicons ART_FOLDER OUTPUT_FOLDER: draws the application's icons and the zoom cursor.

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
void saveIcon(const QString &drawing, const QString &file)
{
    constexpr int HeaderBytes = 6;
    constexpr int EntryBytes = 16;
    const QVector<int> sides{16, 24, 32, 48, 64, 128, 256};
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
    if (arguments.size() != 3)
        qFatal("usage: drawicons ART_FOLDER OUTPUT_FOLDER");
    const QString appIcon = arguments[1] + "/appicon.svg";
    const QString &output = arguments[2];
    saveIcon(appIcon, output + "/Pictorel.ico");
    savePicture(drawSvg(appIcon, 64), output + "/Pictorel.png");
    savePicture(drawSvg(appIcon, 256), output + "/appicon.png");
    savePicture(drawSvg(arguments[1] + "/zoom_cursor.svg", 48), output + "/zoom_cursor.png");
    return 0;
}

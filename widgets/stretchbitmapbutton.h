#pragma once

#include <QPixmap>
#include <QPushButton>
#include <QString>

class QLabel;
enum class PlateState;

// A command button: a bitmap for its state, stretched over the whole button, and a caption over the right
// three fifths of it. The bitmaps are the resources ":res/" + name + "_up.bmp" (normal), "_dw.bmp" (pressed)
// and "_ds.bmp" (disabled); without them the button shrinks to nothing. The size follows from the bitmap and
// the width of the primary screen at construction, so that six buttons always fit side by side. Where that is
// not the bitmap's own size in pixels of the screen, the drawing ":res/" + name + ".svg" is drawn anew for
// it. The button starts hidden.
class CStretchBitmapButton : public QPushButton
{
    Q_OBJECT

public:
    // name finds the bitmaps, and is the accessible name until there is a caption.
    explicit CStretchBitmapButton(const QString &name, QWidget *parent = nullptr);

    // Gives the button the size of its bitmaps on the screen as it is now, which are loaded and scaled anew
    // when they are painted next.
    void setIconFromObjectNameBitmap();

    // The caption, with "\n" between its lines; on one line it is also the accessible name.
    void setCaptionText(const QString &text);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void createCaption();
    QString resource(const char *ending) const;
    void forgetPixmaps();
    const QPixmap &pixmapForState();
    const QPixmap &loaded(QPixmap *pixmap, const char *ending, PlateState state);

    QLabel *m_caption = nullptr;
    QString m_name;
    QPixmap m_up; // null until it is painted, as the next two
    QPixmap m_down;
    QPixmap m_disabled;
    QSize m_pixels; // of the three
    bool m_focusedByKeyboard = false;
};

#pragma once

#include <QImage>
#include <QPixmap>
#include <QString>
#include <QWidget>

class CStretchBitmapButton;
class PictureLoader;
class QLabel;

// Shows one photo, centred on black: as a tile of a grid with a button for zooming (list mode), or over a
// larger area with a button for going back (zoom mode). Before the first of the two it has no button.
class PictureWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PictureWidget(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());

    // Loads a photo by its bare name, which counts at once. An empty name keeps the one before, an empty
    // folder is the working folder. The file is read in the background: what was shown before is shown until
    // the photo has come, and of several requests only the newest counts. A file without a picture empties
    // the widget then.
    void Loadbmp(const QString &name, QString folder);

    // Shows a picture at once under that bare name, instead of one that is being read. It is shared, not
    // copied, when it is of Format_RGB32.
    void showPicture(const QString &name, const QImage &picture);

    // To be called once each for a widget: every call adds one more signal to a press of the button.
    void ListMode();
    void ZoomMode();

    void labelVisible(bool visible);

    // Also shows the caption if it was hidden.
    void setLabelText(const QString &text);

    // Its place among several photos: the caption, and part of what it and its buttons are called.
    void setNumber(int number);

    // Empties the widget, and forgets what is being read.
    void Release();

    QString fileName() const { return m_fileName; }
    bool isZoomed() const;

public slots:
    void OnZoom();
    void OnBack();

signals:
    void onZoom(PictureWidget *picture);
    void onBack(PictureWidget *picture);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void take(const QImage &picture);
    void createButtons();
    QString numbered(const QString &word) const;
    void placeAtBottomRight(QWidget *button);

    QString m_fileName;
    QPixmap m_pixmap; // as loaded, or as last painted
    PictureLoader *m_loader;
    QLabel *m_caption;
    QString m_number; // empty where it stands alone
    CStretchBitmapButton *m_zoom = nullptr;
    CStretchBitmapButton *m_back = nullptr;
};

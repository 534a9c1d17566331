#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

class CStretchBitmapButton;
class QLabel;

// Shows one photo, centred on black: as a tile of a grid with a button for zooming (list mode), or over a
// larger area with a button for going back (zoom mode). Before the first of the two it has no button.
class PictureWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PictureWidget(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());

    // Loads a photo by its bare name. An empty name keeps the one before, an empty folder is the working
    // folder. A file without a picture gives an empty black widget.
    void Loadbmp(const QString &name, QString folder);

    // To be called once each for a widget: every call adds one more signal to a press of the button.
    void ListMode();
    void ZoomMode();

    void labelVisible(bool visible);

    // Also shows the caption if it was hidden.
    void setLabelText(const QString &text);

    // Empties the widget.
    void Release();

    void showPicture(const QString &name, const QImage &picture)
    {
        m_fileName = name;
        m_pixmap = QPixmap::fromImage(picture);
        update();
    }
    QString fileName() const { return m_fileName; }

public slots:
    void OnZoom();
    void OnBack();

signals:
    void onZoom(PictureWidget *picture);
    void onBack(PictureWidget *picture);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void createButtons();
    void placeAtBottomRight(QWidget *button);

    QString m_fileName;
    QPixmap m_pixmap; // as loaded, or as last painted
    QLabel *m_caption;
    CStretchBitmapButton *m_zoom = nullptr;
    CStretchBitmapButton *m_back = nullptr;
};

#pragma once

#include "widgets/swipedlist.h"

#include <QHash>
#include <QIcon>
#include <QPersistentModelIndex>
#include <QStringList>
#include <QVector>

class PictureLoader;

// The strip of thumbnails in which the user chooses what to show or to hand over: up to nine photos, in the
// order of choosing, or one movie. Names are bare file names; a movie is named by its preview picture
// ("...tmp.png"), and shown by its own (".mov"). Items stand at once with a grey picture and get their
// thumbnail when it has been read in the background.
class PictureListView : public SwipedList
{
    Q_OBJECT

public:
    static constexpr int mostChosen = 9;

    explicit PictureListView(QWidget *parent = nullptr);

    // One movie can be chosen (true), or several photos.
    void setMovieMode(bool movies);

    // The size of thumbnails; an empty one lets the height of the list decide when the first is added.
    void setPictSize(const QSize &size);

    // Makes the thumbnails anew, for another height of the list. What is chosen stays chosen.
    void fitThumbnails();

    // A name that is there already is not added again.
    void AddPicture(const QString &name);
    void AddPicture(const QStringList &names);

    // Also counts as chosen, without being marked.
    void AddPictureWithSelect(const QString &name);

    // Empties the list; Release() hides it too.
    void Reset();
    void Release();

    // Choosing from outside; the tenth choice is refused with a warning.
    void OnSelect(const QString &name);
    void UnSelect(const QString &name);

    // Where thumbnails are read from; empty is the working folder.
    void setFolder(const QString &folder) { m_folder = folder; }
    QString folder() const { return m_folder; }

    // What was chosen, in that order, and the latest of it.
    QStringList selectionList() const { return m_selectionList; }
    void clearSelectionList() { m_selectionList.clear(); }
    QString currentName() const { return m_currentName; }

    QStringList nameList() const { return m_nameList; }
    // Every item that was ever added: those from before the latest Reset() exist no more.
    const QVector<QListWidgetItem *> &items() const { return m_items; }
    bool isMovieMode() const { return m_movieMode; }

signals:
    void selectedPhoto();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    QStyleOptionViewItem viewOptions() const override;

private slots:
    void selectedItem();

private:
    void addItem(const QString &name);
    void ensureIconSize();
    QListWidgetItem *createItem(const QString &name);
    QSize itemSize() const;
    QString spokenName(const QString &name) const;
    void requestThumbnail(const QString &name, QListWidgetItem *item);
    void forgetRequests();
    void showThumbnail(int id, const QImage &thumbnail);
    QIcon iconOf(const QImage &thumbnail) const;
    QList<QListWidgetItem *> selectedInListOrder() const;
    void followSelection(const QList<QListWidgetItem *> &selected);
    void chooseMovie();
    void warnAboutTooMany();

    QStringList m_selectionList;
    QStringList m_nameList;
    QVector<QListWidgetItem *> m_items;
    QString m_currentName;
    bool m_movieMode = false;
    bool m_isUsedByKeyboard = false;
    QString m_folder;

    QIcon m_placeholder; // one for all, as long as they are of one size
    QSize m_placeholderSize;
    PictureLoader *m_loader;
    int m_lastRequest = 0;
    QHash<int, QPersistentModelIndex> m_awaited; // the item of each request under way
};

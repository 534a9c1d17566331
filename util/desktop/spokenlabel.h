#pragma once

#include <QLabel>

// A label that appears without having been asked for, and so without the focus: screen readers say what it
// has to say as soon as it says it.
class SpokenLabel : public QLabel
{
    Q_OBJECT

public:
    explicit SpokenLabel(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());

    // Has the words read aloud now; they are the label's name from then on.
    void announce(const QString &words);
};

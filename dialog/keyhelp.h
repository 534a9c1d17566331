#pragma once

#include <QWidget>

class QGridLayout;
class SpokenLabel;

// All keys that the program knows, and what each does, over the whole of a window. It comes up when it is
// made and goes with the next press of a key, the mouse or a finger, which does nothing else; keys that
// repeat themselves do not count. A dialog that comes up meanwhile, and so has to be answered, takes it away
// too. It deletes itself then. What the window shows goes on beneath.
class KeyHelp : public QWidget
{
    Q_OBJECT

public:
    explicit KeyHelp(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void fillTable();
    void fillWindow();
    void setLetters(int pixels);
    bool isOfWindow(const QObject *watched) const;
    bool takesFromWindow(QEvent &event);
    bool takesRestOfPress(QEvent &event);
    void leave(bool isPointerDown);
    void end();

    QGridLayout *m_table;
    SpokenLabel *m_heading;
    bool m_isPointerDown = false; // hidden by it, and waits for it to be let go
};

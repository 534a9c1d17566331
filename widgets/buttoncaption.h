#pragma once

#include <QLabel>

// The caption over a button's plate. It is painted as it is read: grey while the button is disabled, and
// without the blanks with which a text begins its later lines, so that its lines stand under each other.
class ButtonCaption : public QLabel
{
public:
    explicit ButtonCaption(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#pragma once

class QWidget;

// Fixes the widget's size to its hint and moves it to the middle of the whole desktop. Does nothing without a
// widget.
void centreOnDesktop(QWidget *widget);

// Moves it there with the size that it has.
void moveToMiddle(QWidget *widget);

// Makes a window that is about to be shown no larger than the screen, and its frame with it.
void fitOnScreen(QWidget *window);

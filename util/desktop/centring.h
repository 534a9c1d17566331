#pragma once

class QWidget;

// Fixes the widget's size to its hint and moves it to the middle of the whole desktop. Does nothing without a
// widget.
void centreOnDesktop(QWidget *widget);

#pragma once

#include "res/drawing/plate.h"

#include <QImage>
#include <QSize>
#include <QString>

// The size of the buttons that lie on photos. They carry their pictogram in the middle; all others have it at
// their left, beside a caption.
constexpr QSize tileButtonSize(88, 64);

// A command button of that size, in pixels at a scale of 1, drawn at that scale: its plate with the pictogram
// of the drawing on it. Null when the file is not a drawing.
QImage drawButton(const QString &drawing, const QSize &size, PlateState state, qreal scale);

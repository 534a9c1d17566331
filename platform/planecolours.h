#pragma once

#include "platform/pictureplanes.h"

// The planes as 32-bit BGRx rows, at the size that they have. False when their colour is of no usual size.
bool toBgrx(const PicturePlanes &planes, uint8_t *out, int stride);

// The planes as 24-bit RGB rows, colours between two of theirs being interpolated.
bool toRgb(const PicturePlanes &planes, uint8_t *out, int stride);

// Gives an I420 picture, whose planes are of such colours, those that it says it has, of limited range.
void changeColours(const GstVideoColorimetry &from, GstVideoFrame *picture);

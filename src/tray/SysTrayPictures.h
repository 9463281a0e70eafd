#pragma once

#include "tray/cSysTray.h"

#include <QIcon>

// The fifty pictures of the tray icon, drawn for each size the notification areas ask for
// (16 and 22 pixels above all), so that they stay legible where they are smallest.
//
// General: the reel at rest (normal), a warning sign (error), a green play button (play),
// the reel greyed and struck through (suspended). Record: a red disc whose white sector
// goes once round in 16 steps; RecordAndPlay: the same with a play badge. Convert: a blue
// square with a circular arrow that turns a fifth per step; ConvertAndPlay: with the badge.
// Pause: the red disc with pause bars, bright (1) and dim (2), and the same with the badge
// (3 and 4).
namespace SysTrayPictures {
QIcon Icon(const SysTrayPicture& picture);
// One picture at one size, as the icon above holds it.
QPixmap Pixmap(const SysTrayPicture& picture, int size);
} // namespace SysTrayPictures

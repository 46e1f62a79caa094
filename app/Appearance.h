#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

namespace vexel {

// Light or dark: the two looks of the app.
enum class Appearance { light, dark };

// The app's look in one place: a fixed palette per appearance and the app's
// own font, so that windows and pictures look the same on every machine.
namespace Look {

// Loads the bundled Inter font by file and makes it the app's font, with
// fixed hinting so that text renders identically from run to run. Returns
// false (keeping Qt's default font) when the font file is missing.
bool installFont();

// The font at a point size, in the app's face.
[[nodiscard]] QFont font(double pointSize, QFont::Weight weight = QFont::Normal);

[[nodiscard]] QPalette palette(Appearance appearance);

// The sidebar's own background, a step away from the page background.
[[nodiscard]] QColor sidebar(Appearance appearance);

// Secondary text, for explanations under a figure.
[[nodiscard]] QColor secondaryText(Appearance appearance);

// The text of a button whose action destroys something (Force Quit, Erase).
[[nodiscard]] QColor destructive(Appearance appearance);

} // namespace Look
} // namespace vexel

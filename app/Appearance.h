#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

namespace vexel {

// Light or dark: the two looks of the app.
enum class Appearance { light, dark };

// The appearance a palette shows: dark when its text is light.
[[nodiscard]] Appearance appearanceOf(const QPalette& palette);

// The app's look in one place. Pictures use a fixed palette per appearance
// and the app's own font, so that they look the same on every machine; the
// live window uses the system's style, font and palette, and everything
// drawn takes its colours from the palette it is drawn on.
namespace Look {

// Loads the bundled Inter font by file and makes it the app's font, with
// fixed hinting so that text renders identically from run to run. Returns
// false (keeping Qt's default font) when the font file is missing.
bool installFont();

// The font at a point size, in the app's face.
[[nodiscard]] QFont font(double pointSize, QFont::Weight weight = QFont::Normal);

// `font`, or smaller by half steps (of pixels or points, as it is set)
// until `text` is no wider than `width`: a figure or a translated word stays
// inside its box whatever its length.
[[nodiscard]] QFont fitted(QFont font, const QString& text, double width);

// Vexel's own palette of an appearance: the pictures', and the live window's
// where the system's palette is of the other appearance than the desktop asks.
[[nodiscard]] QPalette palette(Appearance appearance);

// The sidebar's own background, a step away from the page background.
[[nodiscard]] QColor sidebar(Appearance appearance);

// Secondary text, for explanations under a figure: the palette's
// PlaceholderText, which Vexel's palettes set to this.
[[nodiscard]] QColor secondaryText(Appearance appearance);

// The text of a button whose action destroys something (Force Quit, Erase).
[[nodiscard]] QColor destructive(Appearance appearance);

} // namespace Look
} // namespace vexel

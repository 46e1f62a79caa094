#pragma once

#include "Appearance.h"

class QPushButton;
class QString;
class QWidget;

namespace vexel::Look {

// A push button as the platform draws one: its button font, and the
// padding its style gives that font. One whose action destroys something
// (Force Quit, Force Stop, Erase) says so in the destructive colour.
[[nodiscard]] QPushButton* button(const QString& text, QWidget* parent);
[[nodiscard]] QPushButton* destructiveButton(const QString& text, QWidget* parent);

} // namespace vexel::Look

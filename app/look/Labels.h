#pragma once

#include "Appearance.h"

class QLabel;
class QString;
class QWidget;

namespace vexel::Look {

// A quiet line in the middle of a page: what it waits for, or why it is empty.
[[nodiscard]] QLabel* centredNote(const QString& text, Appearance appearance, QWidget* parent);

} // namespace vexel::Look

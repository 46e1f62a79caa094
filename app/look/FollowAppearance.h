#pragma once

#include "Appearance.h"

#include <QColor>
#include <QPalette>

#include <functional>

class QWidget;

namespace vexel::Look {

// Keeps a widget in step with the appearance of its palette: `restyle` runs
// now, and again whenever the palette turns from light to dark or back, as
// it does when the desktop's colour scheme changes while Vexel runs.
void followAppearance(QWidget* widget, std::function<void(QWidget*, Appearance)> restyle);

// Keeps one colour of a widget's palette at the colour of its appearance.
void keepColour(QWidget* widget, QPalette::ColorRole role, std::function<QColor(Appearance)> colour);

} // namespace vexel::Look

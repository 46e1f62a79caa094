#pragma once

#include "Appearance.h"

class QLabel;
class QString;
class QWidget;

namespace vexel::Look {

// A quiet line in the middle of a page: what it waits for, or why it is empty.
[[nodiscard]] QLabel* centredNote(const QString& text, QWidget* parent);

// A page's title, and the heading of a section of it.
[[nodiscard]] QLabel* pageTitle(const QString& text, QWidget* parent);
[[nodiscard]] QLabel* heading(const QString& text, QWidget* parent);

// A figure in large type ("34%", "2.1 MB/s").
[[nodiscard]] QLabel* figure(QWidget* parent);

// Body text that wraps: a row of a list, a reading in words.
[[nodiscard]] QLabel* line(QWidget* parent, const QString& text = {});

// An explanation under a figure, in the palette's secondary colour, wrapping.
[[nodiscard]] QLabel* explanation(const QString& text, QWidget* parent);

} // namespace vexel::Look

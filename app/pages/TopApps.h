#pragma once

#include "Appearance.h"
#include "grouping/AppSort.h"

#include <QWidget>

#include <functional>
#include <string>

class QLabel;

namespace vexel {

class AppModel;
class FigureRows;
struct AppGroup;

// The busiest apps for one reading: a heading, then a row per app with its
// figure at the right, and a note under them saying what the figures cover.
class TopApps final : public QWidget {
public:
    using Figure = std::function<std::string(const AppGroup&)>;

    TopApps(const QString& heading, QWidget* parent);

    // The first `count` apps of the model in `order`, each shown by `figure`.
    void show(const AppModel& model, AppSort order, size_t count, const Figure& figure);
    void setNote(const QString& note);

    // "Google Chrome  12%" per shown row.
    [[nodiscard]] QStringList rows() const;

private:
    FigureRows* m_rows = nullptr;
    QLabel* m_empty = nullptr;
    QLabel* m_note = nullptr;
};

} // namespace vexel

#pragma once

#include "Appearance.h"

#include <QWidget>

class QLabel;
class QVBoxLayout;

namespace vexel {

class AppModel;

// One page of the window. It shows what the model holds and acts only
// through the model; it never reads the machine itself.
class Page : public QWidget {
public:
    explicit Page(QWidget* parent);

    // Shows what the model holds now.
    virtual void showModel(const AppModel& model) = 0;
    // The model's changes (AppModel::Change bits) that this page shows.
    [[nodiscard]] virtual unsigned shows() const = 0;
    // The model the page's buttons act on.
    virtual void attach(AppModel& model) { m_model = &model; }
    // Shows the model as the window does: a page of the machine's readings
    // says "Taking the first reading…" until the first frame is in.
    void present(const AppModel& model);
    [[nodiscard]] bool waitingShown() const;

protected:
    // Whether the page shows nothing until the first frame; a page that says
    // it in its own way, or shows what needs no frame, answers false.
    [[nodiscard]] virtual bool waitsForFrames() const;
    void resizeEvent(QResizeEvent* event) override;

    [[nodiscard]] AppModel* model() const { return m_model; }
    // A scrolling column under the page's title, for pages taller than the window.
    QVBoxLayout* scrollingColumn(const QString& title);
    // The same column without a title, and the widget that holds it.
    QVBoxLayout* scrollingColumn(QWidget** holder = nullptr);

private:
    AppModel* m_model = nullptr;
    QLabel* m_waiting = nullptr; // over the whole page until the first frame
};

} // namespace vexel

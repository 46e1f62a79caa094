#pragma once

#include "Appearance.h"
#include "devservers/DevServers.h"

#include <QWidget>

class QLabel;

namespace vexel {

class AppModel;

// One dev server on the Developers page: its name and runtime, its ports,
// its load, the idle flag and whether other devices can reach it, with its
// address to copy, its working folder to show and Stop / Force Stop.
class ServerRow final : public QWidget {
public:
    ServerRow(const DevServer& server, const AppModel& model, QWidget* parent);

    void attach(AppModel& model) { m_model = &model; }
    [[nodiscard]] QString summary() const; // what the row says, for tests

private:
    QString m_summary;
    AppModel* m_model = nullptr;
};

} // namespace vexel

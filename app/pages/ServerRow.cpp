#include "pages/ServerRow.h"

#include "format/Fmt.h"
#include "look/Buttons.h"
#include "look/FollowAppearance.h"
#include "look/Labels.h"
#include "look/StrainColours.h"
#include "model/AppModel.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vexel {

namespace {

std::string portsOf(const DevServer& server)
{
    std::string text;
    for (const auto port : server.ports)
        text += (text.empty() ? ":" : ", :") + std::to_string(port);
    return text;
}

} // namespace

ServerRow::ServerRow(const DevServer& server, const AppModel& model, QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 6, 0, 6);
    layout->setSpacing(4);
    const auto cores = model.cpuScaleCores();
    const std::string title = server.name + "  " + portsOf(server);
    const std::string load = server.runtime + "  ·  CPU " + Fmt::cpu(server.cpu, cores) + "  ·  "
        + Fmt::memory(server.memory) + "  ·  process " + std::to_string(server.pid);
    auto* name = Look::line(this, qs(title));
    name->setFont(Look::font(12, QFont::DemiBold));
    layout->addWidget(name);
    layout->addWidget(Look::explanation(qs(load), this));
    m_summary = qs(title + "\n" + load);
    if (server.isIdle) {
        const double since = server.idleSince.value_or(server.started);
        const std::string idle = "Idle for " + Fmt::duration(model.frame ? model.frame->time - since : 0);
        auto* flag = Look::line(this, qs(idle));
        Look::keepColour(flag, QPalette::WindowText,
            [](Appearance appearance) { return Look::strainColour(appearance, Strain::elevated); });
        layout->addWidget(flag);
        m_summary += qs("\n" + idle);
    }
    if (std::ranges::any_of(server.sockets, reachableFromNetwork)) {
        const QString reachable = Vexel::tr("Reachable from other devices on your network");
        layout->addWidget(Look::explanation(reachable, this));
        m_summary += "\n" + reachable;
    }
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    if (!server.ports.empty()) {
        const uint16_t port = server.ports.front();
        auto* copy = Look::button(Vexel::tr("Copy http://localhost:%1").arg(port), this);
        connect(copy, &QPushButton::clicked, this, [this, port] {
            if (m_model)
                m_model->copyAddress(port);
        });
        buttons->addWidget(copy);
    }
    if (server.cwd) {
        auto* reveal = Look::button(Vexel::tr("Reveal Working Folder"), this);
        connect(reveal, &QPushButton::clicked, this, [this, folder = *server.cwd] {
            if (m_model)
                m_model->reveal(folder);
        });
        buttons->addWidget(reveal);
    }
    std::vector<std::string> context{"Project: " + server.project.name};
    if (!server.ports.empty())
        context.insert(context.begin(), "Listening on " + portsOf(server));
    auto* stop = Look::button(Vexel::tr("Stop…"), this);
    auto* force = Look::destructiveButton(Vexel::tr("Force Stop…"), this);
    const auto ask = [this, pid = server.pid, display = server.name, context](bool forced) {
        if (m_model)
            m_model->actions().requestStop(pid, display, context, forced);
    };
    connect(stop, &QPushButton::clicked, this, [ask] { ask(false); });
    connect(force, &QPushButton::clicked, this, [ask] { ask(true); });
    buttons->addWidget(stop);
    buttons->addWidget(force);
    buttons->addStretch(1);
    layout->addLayout(buttons);
}

QString ServerRow::summary() const
{
    return m_summary;
}

} // namespace vexel

#include "pages/ServerRow.h"

#include "format/Fmt.h"
#include "look/Buttons.h"
#include "look/FlowRow.h"
#include "look/FollowAppearance.h"
#include "look/Labels.h"
#include "look/StrainColours.h"
#include "model/AppModel.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Readings.h"
#include "texts/Vexel.h"

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
    const QString load = Vexel::tr("%1  ·  CPU %2  ·  %3  ·  process %4")
                             .arg(qs(server.runtime), qs(Fmt::cpu(server.cpu, cores)), qs(Fmt::memory(server.memory)))
                             .arg(server.pid);
    auto* name = Look::line(this, qs(title));
    name->setFont(Look::font(12, QFont::DemiBold));
    layout->addWidget(name);
    layout->addWidget(Look::explanation(load, this));
    m_summary = qs(title) + u'\n' + load;
    if (server.isIdle) {
        const double since = server.idleSince.value_or(server.started);
        const QString idle
            = Vexel::tr("Idle for %1").arg(Readings::elapsed(model.frame() ? model.frame()->time - since : 0));
        auto* flag = Look::line(this, idle);
        Look::keepColour(flag, QPalette::WindowText,
            [](Appearance appearance) { return Look::strainColour(appearance, Strain::elevated); });
        layout->addWidget(flag);
        m_summary += u'\n' + idle;
    }
    if (std::ranges::any_of(server.sockets, reachableFromNetwork)) {
        const QString reachable = Vexel::tr("Reachable from other devices on your network");
        layout->addWidget(Look::explanation(reachable, this));
        m_summary += "\n" + reachable;
    }
    auto* buttons = new FlowRow(6);
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
    std::vector<Sentence> context{{VEXEL_WORDS("vexel::Vexel", "Project: %1"), {{server.project.name}}}};
    if (!server.ports.empty())
        context.insert(context.begin(), Sentence{VEXEL_WORDS("vexel::Vexel", "Listening on %1"), {{portsOf(server)}}});
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
    layout->addLayout(buttons);
}

QString ServerRow::summary() const
{
    return m_summary;
}

} // namespace vexel

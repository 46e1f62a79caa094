#include "pages/AppInspector.h"

#include "format/Fmt.h"
#include "look/Buttons.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "pages/CommandLine.h"
#include "pages/KeyedRows.h"
#include "platform/Environment.h"
#include "text/HomePath.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace vexel {

namespace {

QString kindWord(const AppGroup& app)
{
    switch (app.kind) {
    case AppKind::app: return Vexel::tr("App");
    case AppKind::system: return Vexel::tr("System service");
    case AppKind::tool: return Vexel::tr("Tool");
    }
    return {};
}

} // namespace

AppInspector::AppInspector(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    m_name = Look::heading({}, this);
    m_name->setWordWrap(true);
    layout->addWidget(m_name);
    m_summary = Look::line(this);
    layout->addWidget(m_summary);
    m_where = Look::explanation({}, this);
    layout->addWidget(m_where);

    auto* buttons = new QHBoxLayout;
    m_reveal = Look::button({}, this);
    m_quit = Look::button(Vexel::tr("Quit…"), this);
    m_forceQuit = Look::destructiveButton(Vexel::tr("Force Quit…"), this);
    buttons->addWidget(m_quit);
    buttons->addWidget(m_forceQuit);
    buttons->addStretch(1);
    layout->addLayout(buttons);
    layout->addWidget(m_reveal, 0, Qt::AlignLeft);
    connect(m_reveal, &QPushButton::clicked, this, [this] {
        if (m_model && m_path)
            m_model->reveal(*m_path);
    });
    const auto quit = [this](bool force) {
        if (m_model == nullptr)
            return;
        if (const auto* app = m_model->selected(); app && app->id == m_appId)
            m_model->actions().requestQuit(*app, force);
    };
    connect(m_quit, &QPushButton::clicked, this, [quit] { quit(false); });
    connect(m_forceQuit, &QPushButton::clicked, this, [quit] { quit(true); });

    m_system = Look::explanation({}, this);
    m_otherUsers = Look::explanation({}, this);
    m_zombies = Look::explanation({}, this);
    for (auto* note : {m_system, m_otherUsers, m_zombies})
        layout->addWidget(note);

    buildProcessList(layout);
    buildHangingSection(layout);
}

void AppInspector::buildProcessList(QVBoxLayout* layout)
{
    const auto table = sortedTable(
        {Vexel::tr("Process"), Vexel::tr("PID"), Vexel::tr("CPU"), Vexel::tr("Memory")}, Vexel::tr("Processes"), this);
    m_rows = table.rows;
    m_sorted = table.sorted;
    m_processes = table.view;
    m_processes->setFont(Look::font(11));
    for (int column = 1; column < 4; ++column)
        m_processes->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    m_processes->setSortingEnabled(true);
    m_processes->sortByColumn(2, Qt::DescendingOrder);
    m_processes->setMinimumHeight(150);
    layout->addWidget(m_processes, 1);
    connect(m_processes->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this] { followSelectedProcess(); });

    // Any one of the user's processes, a runaway script as much as an app's helper.
    m_stopProcess = Look::destructiveButton(Vexel::tr("Force Stop Process…"), this);
    m_stopProcess->setEnabled(false);
    layout->addWidget(m_stopProcess, 0, Qt::AlignLeft);
    connect(m_stopProcess, &QPushButton::clicked, this, [this] {
        const QModelIndex current = m_processes->currentIndex();
        if (m_model == nullptr || !current.isValid() || !offersStop())
            return;
        const auto pid = static_cast<int32_t>(current.data(KeyedRows::keyRole).toInt());
        const std::string name = m_sorted->index(current.row(), 0).data().toString().toStdString();
        const auto* app = m_model->selected();
        std::vector<Sentence> context;
        if (app != nullptr)
            context.push_back({VEXEL_WORDS("vexel::Vexel", "Part of %1"), {{app->name}}});
        m_model->actions().requestStop(pid, name, context, true);
    });
}

void AppInspector::followSelectedProcess()
{
    m_stopProcess->setEnabled(offersStop());
}

bool AppInspector::offersStop() const
{
    const QModelIndex current = m_processes->currentIndex();
    return current.isValid()
        && std::ranges::find(m_stoppable, static_cast<int32_t>(current.data(KeyedRows::keyRole).toInt()))
        != m_stoppable.end();
}

void AppInspector::buildHangingSection(QVBoxLayout* layout)
{
    layout->addWidget(Look::heading(Vexel::tr("If it's hanging or busy"), this));
    const auto copy = [this](const std::string& command) {
        if (m_model)
            m_model->copyCommand(command);
    };
    m_sampleCommand = new CommandLine(this, copy);
    layout->addWidget(m_sampleCommand);
    layout->addWidget(Look::explanation(Vexel::tr("Samples its call stacks for 5 seconds."), this));
    m_reportCommand = new CommandLine(this, copy);
    layout->addWidget(m_reportCommand);
    m_reportNote = Look::explanation({}, this);
    layout->addWidget(m_reportNote);
}

void AppInspector::showApp(const AppGroup& app, const AppModel& model)
{
    const Platform platform = model.platform;
    const auto cores = model.cpuScaleCores();
    m_appId = app.id;
    m_path = app.path;
    m_name->setText(qs(app.name));
    const size_t count = app.processes.size();
    m_summary->setText(Vexel::tr("CPU %1  ·  Memory %2  ·  %n process(es)", nullptr, static_cast<int>(count))
                           .arg(qs(Fmt::cpu(app.cpu, cores)), qs(Fmt::memory(app.memory))));
    m_where->setText(kindWord(app) + (app.path ? qs("  ·  " + shownPath(*app.path, model.home)) : QString()));
    m_reveal->setText(PageTexts::revealInFiles(platform));
    m_reveal->setVisible(app.path.has_value());
    const bool quittable = model.canQuit(app);
    m_quit->setVisible(quittable);
    m_forceQuit->setVisible(quittable);

    m_system->setText(PageTexts::systemGroupNote(platform));
    m_system->setVisible(app.kind == AppKind::system);
    const int others = static_cast<int>(
        std::ranges::count_if(app.processes, [&model](const ProcRow& row) { return row.uid != model.myUID(); }));
    m_otherUsers->setText(PageTexts::otherUsersNote(platform, others));
    m_otherUsers->setVisible(others > 0);
    m_zombies->setText(PageTexts::zombiesNote(app.zombies));
    m_zombies->setVisible(app.zombies > 0);

    showProcesses(app, model);
    m_mainPid = app.mainPID.value_or(app.processes.empty() ? 0 : app.processes.front().pid);
    m_sampleCommand->setText(qs(PageTexts::sampleCommand(platform, m_mainPid)));
    m_reportCommand->setText(qs(PageTexts::fullerReportCommand(platform, m_mainPid)));
    m_reportNote->setText(PageTexts::fullerReportNote(platform));
}

void AppInspector::showProcesses(const AppGroup& app, const AppModel& model)
{
    const auto cores = model.cpuScaleCores();
    std::vector<KeyedRows::Row> rows;
    m_stoppable.clear();
    for (const auto& row : app.processes) {
        const QString name = row.zombie ? Vexel::tr("%1 (zombie)").arg(qs(row.name)) : qs(row.name);
        rows.push_back({QString::number(row.pid),
            {{name, name.toLower()}, {QString::number(row.pid), row.pid}, {qs(Fmt::cpu(row.cpu, cores)), row.cpu},
                {qs(Fmt::memory(row.memory)), QVariant::fromValue(row.memory)}}});
        if (model.canStop(row))
            m_stoppable.push_back(row.pid);
    }
    // Another app's processes replace the list; the same app's are updated where they stand.
    if (m_shownApp != app.id) {
        m_rows->setRows({});
        m_shownApp = app.id;
    }
    m_rows->setRows(std::move(rows));
    followSelectedProcess();
}

bool AppInspector::offersQuit() const
{
    return !m_quit->isHidden() && !m_forceQuit->isHidden();
}

QStringList AppInspector::notes() const
{
    QStringList shown;
    for (const auto* note : {m_system, m_otherUsers, m_zombies})
        if (!note->isHidden())
            shown << note->text();
    return shown;
}

int AppInspector::processRows() const
{
    return m_sorted->rowCount();
}

} // namespace vexel

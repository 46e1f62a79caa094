#include "pages/CpuPage.h"

#include "format/CFormat.h"
#include "format/Fmt.h"
#include "look/BarBank.h"
#include "look/Labels.h"
#include "look/PaintedView.h"
#include "model/AppModel.h"
#include "pages/TopApps.h"
#include "pages/Traces.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QLabel>
#include <QVBoxLayout>

namespace vexel {

namespace {

QString coresCaption(const CPUStats& cpu)
{
    const auto count = static_cast<int>(cpu.cores.size());
    if (cpu.performanceCores > 0 && cpu.efficiencyCores > 0)
        return Vexel::tr("%n cores: %1 performance and %2 efficiency", nullptr, count)
            .arg(cpu.performanceCores)
            .arg(cpu.efficiencyCores);
    return Vexel::tr("%n core(s)", nullptr, count);
}

} // namespace

CpuPage::CpuPage(QWidget* parent)
    : Page(parent)
{
    auto* column = scrollingColumn(Vexel::tr("CPU"));
    m_total = Look::figure(this);
    column->addWidget(m_total);
    m_split = Look::line(this);
    column->addWidget(m_split);
    m_trace = new PaintedView(Vexel::tr("CPU, last few minutes"), QSize(480, 110), this);
    column->addWidget(m_trace);
    m_traceCaption = Look::explanation(Vexel::tr("Last few minutes"), this);
    column->addWidget(m_traceCaption);
    column->addSpacing(6);
    column->addWidget(Look::heading(Vexel::tr("Cores"), this));
    m_coresCaption = Look::explanation({}, this);
    column->addWidget(m_coresCaption);
    m_cores = new PaintedView(Vexel::tr("CPU per core"), QSize(480, 70), this);
    column->addWidget(m_cores);
    column->addSpacing(6);
    column->addWidget(Look::heading(Vexel::tr("Load"), this));
    m_load = Look::line(this);
    column->addWidget(m_load);
    m_loadNote = Look::explanation({}, this);
    column->addWidget(m_loadNote);
    m_scale = Look::explanation({}, this);
    column->addWidget(m_scale);
    column->addSpacing(6);
    m_top = new TopApps(Vexel::tr("Busiest apps"), this);
    column->addWidget(m_top);
    column->addStretch(1);
}

unsigned CpuPage::shows() const
{
    return AppModel::frameChanged | AppModel::settingsChanged;
}

void CpuPage::showModel(const AppModel& model)
{
    if (!model.frame())
        return;
    const auto& cpu = model.frame()->system.cpu;
    const bool wholeMachine = model.settings().cpuScale == CPUScale::mac;
    const auto cores = wholeMachine ? std::optional(model.cores()) : std::nullopt;
    const double busy = (cpu.user + cpu.system) * model.cores(); // in cores
    m_total->setText(qs(Fmt::cpu(busy, cores)));
    m_split->setText(
        Vexel::tr("User %1  ·  System %2")
            .arg(qs(Fmt::cpu(cpu.user * model.cores(), cores)), qs(Fmt::cpu(cpu.system * model.cores(), cores))));
    m_trace->draw(shareTrace(model.ring(), &RingSample::cpu, model.strain(MenuItemKind::cpu)));
    m_coresCaption->setText(coresCaption(cpu));
    BarBank bank;
    bank.fractions = cpu.cores;
    bank.strainOf = [rules = model.settings().strain](double value) { return rules.cpu(value); };
    m_cores->draw(bank);
    m_load->setText(
        Vexel::tr("%1  ·  %2  ·  %3   (the last 1, 5 and 15 minutes)")
            .arg(qs(cformat("%.2f", cpu.load1)), qs(cformat("%.2f", cpu.load5)), qs(cformat("%.2f", cpu.load15))));
    m_loadNote->setText(
        Vexel::tr("Load is the number of threads waiting for or using a core. Below %1 (your core count), nothing "
                  "is waiting.")
            .arg(model.cores()));
    m_scale->setText(PageTexts::cpuScaleSentence(model.platform, wholeMachine));
    m_top->show(model, AppSort::cpu, 8, [cores](const AppGroup& app) { return Fmt::cpu(app.cpu, cores); });
}

QString CpuPage::totalText() const
{
    return m_total->text();
}

QString CpuPage::loadNote() const
{
    return m_loadNote->text();
}

QString CpuPage::scaleText() const
{
    return m_scale->text();
}

QStringList CpuPage::topRows() const
{
    return m_top->rows();
}

} // namespace vexel

#include "pages/MemoryPage.h"

#include "format/Fmt.h"
#include "look/FigureRows.h"
#include "look/Labels.h"
#include "look/PaintedView.h"
#include "look/StrainColours.h"
#include "model/AppModel.h"
#include "pages/TopApps.h"
#include "pages/Traces.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QLabel>
#include <QVBoxLayout>

namespace vexel {

MemoryPage::MemoryPage(QWidget* parent)
    : Page(parent)
{
    auto* column = scrollingColumn(Vexel::tr("Memory"));
    m_used = Look::figure(this);
    column->addWidget(m_used);
    m_pressure = Look::line(this);
    column->addWidget(m_pressure);
    m_trace = new PaintedView(Vexel::tr("Memory in use, last few minutes"), QSize(480, 110), this);
    column->addWidget(m_trace);
    m_traceCaption = Look::explanation(Vexel::tr("Last few minutes"), this);
    column->addWidget(m_traceCaption);
    column->addSpacing(6);
    column->addWidget(Look::heading(Vexel::tr("What's in memory"), this));
    m_contents = new FigureRows(this);
    column->addWidget(m_contents);
    m_note = Look::explanation({}, this);
    column->addWidget(m_note);
    column->addSpacing(6);
    m_top = new TopApps(Vexel::tr("Most memory"), this);
    column->addWidget(m_top);
    column->addStretch(1);
}

unsigned MemoryPage::shows() const
{
    return AppModel::frameChanged;
}

void MemoryPage::showModel(const AppModel& model)
{
    if (!model.frame())
        return;
    const auto& memory = model.frame()->system.memory;
    m_used->setText(Vexel::tr("%1 of %2 in use").arg(qs(Fmt::memory(memory.used())), qs(Fmt::memory(memory.total))));
    m_pressure->setText(Vexel::tr("Pressure: %1  ·  Swap used: %2")
                            .arg(Vexel::words(title(memory.pressure)), qs(Fmt::memory(memory.swapUsed))));
    // Calm pressure reads in the text colour; more in the strain's.
    const Strain strain = model.strain(MenuItemKind::memory);
    QPalette palette;
    if (strain != Strain::calm)
        palette.setColor(QPalette::WindowText, Look::strainColour(this->palette(), strain));
    m_pressure->setPalette(palette);
    m_trace->draw(shareTrace(model.ring(), &RingSample::mem, strain));
    m_contents->setRows(
        {{Vexel::tr("App memory"), qs(Fmt::memory(memory.app))}, {Vexel::tr("Wired"), qs(Fmt::memory(memory.wired))},
            {Vexel::tr("Compressed"), qs(Fmt::memory(memory.compressed))},
            {Vexel::tr("Cached files"), qs(Fmt::memory(memory.cached))},
            {Vexel::tr("Free"), qs(Fmt::memory(memory.free))}});
    m_note->setText(PageTexts::memoryPressureNote(model.platform));
    m_top->show(model, AppSort::memory, 8, [](const AppGroup& app) { return Fmt::memory(app.memory); });
    m_top->setNote(PageTexts::perAppMemoryNote(model.platform));
}

QString MemoryPage::usedText() const
{
    return m_used->text();
}

QStringList MemoryPage::contents() const
{
    return m_contents->rows();
}

} // namespace vexel

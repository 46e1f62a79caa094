#include "pages/GpuPage.h"

#include "format/Fmt.h"
#include "look/Labels.h"
#include "look/PaintedView.h"
#include "model/AppModel.h"
#include "pages/Traces.h"
#include "texts/PageTexts.h"
#include "texts/QtText.h"
#include "texts/Vexel.h"

#include <QLabel>
#include <QVBoxLayout>

namespace vexel {

GpuPage::GpuPage(QWidget* parent)
    : Page(parent)
{
    auto* column = scrollingColumn(Vexel::tr("GPU"));
    m_use = Look::figure(this);
    column->addWidget(m_use);
    m_name = Look::explanation({}, this);
    column->addWidget(m_name);
    m_trace = new PaintedView(Vexel::tr("GPU, last few minutes"), QSize(480, 110), this);
    column->addWidget(m_trace);
    m_traceCaption = Look::explanation(Vexel::tr("Last few minutes"), this);
    column->addWidget(m_traceCaption);
    m_unavailable = Look::line(this);
    column->addWidget(m_unavailable);
    column->addSpacing(6);
    m_perApp = Look::explanation({}, this);
    column->addWidget(m_perApp);
    m_neuralEngine = Look::explanation({}, this);
    column->addWidget(m_neuralEngine);
    column->addStretch(1);
}

unsigned GpuPage::shows() const
{
    return AppModel::frameChanged;
}

void GpuPage::showModel(const AppModel& model)
{
    if (!model.frame())
        return;
    const auto& gpu = model.frame()->system.gpu;
    m_use->setVisible(gpu.has_value());
    m_name->setVisible(gpu.has_value());
    m_trace->setVisible(gpu.has_value());
    m_traceCaption->setVisible(gpu.has_value());
    m_unavailable->setVisible(!gpu);
    if (gpu) {
        m_use->setText(Vexel::tr("%1 busy").arg(qs(Fmt::percent(gpu->utilisation))));
        m_name->setText(QString::fromStdString(gpu->name));
        m_trace->draw(shareTrace(model.ring(), &RingSample::gpu, model.strain(MenuItemKind::gpu)));
    } else {
        m_unavailable->setText(PageTexts::noGpuUtilisation(model.platform));
    }
    m_perApp->setText(PageTexts::noGpuPerApp(model.platform));
    const QString neural = PageTexts::neuralEngineNote(model.platform);
    m_neuralEngine->setText(neural);
    m_neuralEngine->setVisible(!neural.isEmpty());
}

bool GpuPage::showsChart() const
{
    return !m_trace->isHidden();
}

QString GpuPage::unavailableText() const
{
    return m_unavailable->isHidden() ? QString() : m_unavailable->text();
}

} // namespace vexel

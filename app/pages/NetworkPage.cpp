#include "pages/NetworkPage.h"

#include "format/Fmt.h"
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

NetworkPage::NetworkPage(QWidget* parent)
    : Page(parent)
{
    auto* column = scrollingColumn(Vexel::tr("Network"));
    m_rates = Look::figure(this);
    column->addWidget(m_rates);
    column->addWidget(Look::explanation(Vexel::tr("Wi-Fi, Ethernet and cellular; VPN traffic counted once."), this));
    column->addWidget(Look::explanation(Vexel::tr("Download"), this));
    m_inTrace = new PaintedView(Vexel::tr("Download, last few minutes"), QSize(480, 84), this);
    column->addWidget(m_inTrace);
    column->addWidget(Look::explanation(Vexel::tr("Upload"), this));
    m_outTrace = new PaintedView(Vexel::tr("Upload, last few minutes"), QSize(480, 84), this);
    column->addWidget(m_outTrace);
    column->addSpacing(6);
    m_top = new TopApps(Vexel::tr("Moving most"), this);
    column->addWidget(m_top);
    column->addStretch(1);
}

unsigned NetworkPage::shows() const
{
    return AppModel::frameChanged | AppModel::settingsChanged;
}

void NetworkPage::showModel(const AppModel& model)
{
    if (!model.frame())
        return;
    const auto unit = model.networkUnit();
    const auto& net = model.frame()->system.net;
    m_rates->setText(
        Vexel::tr("Down %1  ·  Up %2").arg(qs(Fmt::rate(net.inRate, unit)), qs(Fmt::rate(net.outRate, unit))));
    const Strain strain = model.strain(MenuItemKind::network);
    m_inTrace->draw(rateTrace(model.ring(), &RingSample::netIn, strain, unit));
    m_outTrace->draw(rateTrace(model.ring(), &RingSample::netOut, strain, unit));
    m_top->show(
        model, AppSort::network, 8, [unit](const AppGroup& app) { return Fmt::rate(app.netIn + app.netOut, unit); });
    m_top->setNote(PageTexts::networkPerAppNote(model.platform));
}

QString NetworkPage::ratesText() const
{
    return m_rates->text();
}

} // namespace vexel

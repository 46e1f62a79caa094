#include "settings/HistoryTab.h"

#include "format/Fmt.h"
#include "look/Buttons.h"
#include "look/Labels.h"
#include "model/AppModel.h"
#include "settings/ChoiceBox.h"
#include "texts/Vexel.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vexel {

HistoryTab::HistoryTab(QWidget* parent)
    : SettingsTab(parent)
{
    auto* form = section(Vexel::tr("History"),
        Vexel::tr("Readings are kept every few seconds for 3 hours, then each minute for 2 days, every 10 minutes "
                  "for 5 weeks and hourly after that — so a year stays small."));
    m_keep = new ChoiceBox({{Vexel::tr("1 week"), 7}, {Vexel::tr("1 month"), 30}, {Vexel::tr("3 months"), 91},
                               {Vexel::tr("6 months"), 182}, {Vexel::tr("1 year"), 365}},
        this);
    form->addRow(label(Vexel::tr("Keep history for")), m_keep);
    m_cap = new ChoiceBox({{Vexel::tr("16 MB"), 16}, {Vexel::tr("32 MB"), 32}, {Vexel::tr("64 MB"), 64},
                              {Vexel::tr("128 MB"), 128}, {Vexel::tr("256 MB"), 256}, {Vexel::tr("512 MB"), 512}},
        this);
    form->addRow(label(Vexel::tr("Never let the file grow past")), m_cap);
    m_size = Look::line(this);
    column()->addWidget(m_size);
    auto* erase = Look::destructiveButton(Vexel::tr("Erase History…"), this);
    column()->addWidget(erase, 0, Qt::AlignLeft);
    column()->addStretch(1);
    connect(erase, &QPushButton::clicked, this, &HistoryTab::erase);
    connect(m_keep, &QComboBox::currentIndexChanged, this, [this] {
        change([this](VexelSettings& settings) { settings.retentionDays = static_cast<int>(m_keep->value()); });
    });
    connect(m_cap, &QComboBox::currentIndexChanged, this, [this] {
        change([this](VexelSettings& settings) { settings.maxHistoryMB = static_cast<int>(m_cap->value()); });
    });
}

void HistoryTab::erase()
{
    if (model())
        model()->eraseHistory();
}

unsigned HistoryTab::shows() const
{
    return AppModel::settingsChanged | AppModel::totalsChanged | AppModel::storeErrorChanged;
}

void HistoryTab::showModel(const AppModel& model)
{
    m_filling = true;
    m_keep->select(model.settings().retentionDays);
    m_cap->select(model.settings().maxHistoryMB);
    QString size;
    if (model.storeError())
        size = QString::fromStdString(*model.storeError());
    else if (model.historyBytes())
        size = Vexel::tr("The history takes %1 on disk.")
                   .arg(QString::fromStdString(Fmt::bytes(static_cast<double>(*model.historyBytes()))));
    else
        size = Vexel::tr("Measuring the history's size…");
    // Beside the headless recorder, the window shows the history it keeps.
    if (model.otherRecorder())
        size += u' '
            + Vexel::tr("Vexel's recorder (process %1) keeps it; this window shows it and takes over when the "
                        "recorder stops.")
                  .arg(*model.otherRecorder());
    m_size->setText(size);
    m_filling = false;
}

QString HistoryTab::sizeText() const
{
    return m_size->text();
}

} // namespace vexel

#include "settings/GeneralTab.h"

#include "look/FollowAppearance.h"
#include "look/Labels.h"
#include "look/StrainColours.h"
#include "model/AppModel.h"
#include "settings/ChoiceBox.h"
#include "texts/PageTexts.h"
#include "texts/Vexel.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vexel {

GeneralTab::GeneralTab(QWidget* parent)
    : SettingsTab(parent)
{
    auto* reading = section(Vexel::tr("Readings"));
    m_interval
        = new ChoiceBox({{Vexel::tr("2 seconds"), 2}, {Vexel::tr("3 seconds"), 3}, {Vexel::tr("5 seconds"), 5},
                            {Vexel::tr("10 seconds"), 10}, {Vexel::tr("30 seconds"), 30}, {Vexel::tr("1 minute"), 60}},
            this);
    m_intervalLabel = label({});
    reading->addRow(m_intervalLabel, m_interval);
    m_intervalNote = Look::explanation({}, this);
    column()->addWidget(m_intervalNote);
    connect(m_interval, &QComboBox::currentIndexChanged, this,
        [this] { change([this](VexelSettings& settings) { settings.sampleSeconds = m_interval->value(); }); });

    section(Vexel::tr("CPU figures"));
    m_wholeMachine = new QRadioButton(this);
    m_perCore = new QRadioButton(this);
    column()->addWidget(m_wholeMachine);
    column()->addWidget(m_perCore);
    connect(m_perCore, &QRadioButton::toggled, this, [this](bool perCore) {
        change([perCore](VexelSettings& settings) { settings.cpuScale = perCore ? CPUScale::core : CPUScale::mac; });
    });
    m_bits = new QCheckBox(Vexel::tr("Show network rates in bits (Mb/s)"), this);
    column()->addWidget(m_bits);
    connect(m_bits, &QCheckBox::toggled, this,
        [this](bool bits) { change([bits](VexelSettings& settings) { settings.networkBits = bits; }); });

    column()->addSpacing(8);
    m_atLogin = new QCheckBox(Vexel::tr("Open Vexel at login"), this);
    column()->addWidget(m_atLogin);
    m_loginError = Look::explanation({}, this);
    m_loginError->setForegroundRole(QPalette::WindowText);
    Look::keepColour(m_loginError, QPalette::WindowText, Look::destructive);
    m_loginError->hide();
    column()->addWidget(m_loginError);
    connect(m_atLogin, &QCheckBox::toggled, this, [this](bool open) {
        if (!m_filling && model())
            model()->setOpenAtLogin(open);
    });
    column()->addStretch(1);
}

unsigned GeneralTab::shows() const
{
    return AppModel::settingsChanged | AppModel::loginItemChanged;
}

void GeneralTab::showModel(const AppModel& model)
{
    m_filling = true;
    const bool mac = model.platform == Platform::macOS;
    m_intervalLabel->setText(mac ? Vexel::tr("Read the Mac every") : Vexel::tr("Read the computer every"));
    m_intervalNote->setText(mac ? Vexel::tr("With the window closed Vexel reads the Mac at this interval; while "
                                            "you're looking it reads every 2 seconds. Other users' processes, per-app "
                                            "network and ports are read less often to keep Vexel light.")
                                : Vexel::tr("With the window closed Vexel reads the computer at this interval; while "
                                            "you're looking it reads every 2 seconds. Other users' processes, per-app "
                                            "network and ports are read less often to keep Vexel light."));
    m_interval->select(model.settings().sampleSeconds);
    m_wholeMachine->setText(Vexel::tr("%1 (0–100)").arg(PageTexts::cpuScaleMachine(model.platform)));
    m_perCore->setText(PageTexts::cpuScaleCore(model.platform));
    (model.settings().cpuScale == CPUScale::core ? m_perCore : m_wholeMachine)->setChecked(true);
    m_bits->setChecked(model.settings().networkBits);
    m_atLogin->setChecked(model.opensAtLogin());
    m_loginError->setText(QString::fromStdString(model.loginItemError().value_or("")));
    m_loginError->setVisible(model.loginItemError().has_value());
    m_filling = false;
}

QString GeneralTab::loginError() const
{
    return m_loginError->isHidden() ? QString() : m_loginError->text();
}

} // namespace vexel

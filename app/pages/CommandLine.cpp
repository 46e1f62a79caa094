#include "pages/CommandLine.h"

#include "look/Buttons.h"
#include "look/Labels.h"
#include "texts/Vexel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace vexel {

CommandLine::CommandLine(QWidget* parent, std::function<void(const std::string&)> copy)
    : QWidget(parent)
{
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    m_command = new QLabel(this);
    QFont mono = Look::font(10);
    mono.setFamily(QStringLiteral("monospace"));
    mono.setStyleHint(QFont::Monospace);
    m_command->setFont(mono);
    m_command->setWordWrap(true);
    m_command->setTextInteractionFlags(Qt::TextSelectableByMouse);
    line->addWidget(m_command, 1);
    if (!copy)
        return;
    auto* button = Look::button(Vexel::tr("Copy"), this);
    connect(
        button, &QPushButton::clicked, this, [this, copy = std::move(copy)] { copy(m_command->text().toStdString()); });
    line->addWidget(button, 0, Qt::AlignTop);
}

void CommandLine::setText(const QString& command)
{
    m_command->setText(command);
}

QString CommandLine::text() const
{
    return m_command->text();
}

} // namespace vexel

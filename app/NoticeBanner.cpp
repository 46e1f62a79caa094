#include "NoticeBanner.h"

#include "look/FollowAppearance.h"
#include "look/Labels.h"
#include "look/StrainColours.h"
#include "texts/Vexel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vexel {

NoticeBanner::NoticeBanner(QWidget* parent)
    : QFrame(parent)
{
    m_rows = new QVBoxLayout(this);
    m_rows->setContentsMargins(16, 8, 8, 8);
    m_rows->setSpacing(6);
    hide();
}

void NoticeBanner::show(const std::optional<std::string>& error, const std::vector<std::string>& notices)
{
    while (auto* item = m_rows->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    if (error)
        addRow(QString::fromStdString(*error), Strain::strained, std::nullopt);
    for (size_t i = 0; i < notices.size(); ++i)
        addRow(QString::fromStdString(notices[i]), Strain::elevated, static_cast<int>(i));
    setVisible(error || !notices.empty());
}

void NoticeBanner::addRow(const QString& text, Strain strain, std::optional<int> closes)
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* mark = new QFrame(row);
    mark->setFixedSize(4, 18);
    mark->setAutoFillBackground(true);
    Look::keepColour(
        mark, QPalette::Window, [strain](Appearance appearance) { return Look::strainColour(appearance, strain); });
    layout->addWidget(mark, 0, Qt::AlignTop);
    auto* words = Look::line(row, text);
    words->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(words, 1);
    if (closes) {
        auto* close = new QPushButton(QStringLiteral("×"), row);
        close->setFlat(true);
        close->setToolTip(Vexel::tr("Close"));
        close->setAccessibleName(Vexel::tr("Close notice"));
        close->setFixedWidth(28);
        connect(close, &QPushButton::clicked, this, [this, index = *closes] { emit noticeClosed(index); });
        layout->addWidget(close, 0, Qt::AlignTop);
    }
    m_rows->addWidget(row);
}

QStringList NoticeBanner::texts() const
{
    QStringList texts;
    for (auto* label : findChildren<QLabel*>())
        texts << label->text();
    return texts;
}

} // namespace vexel

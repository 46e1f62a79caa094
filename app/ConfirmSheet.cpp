#include "ConfirmSheet.h"

#include "actions/ActionFlow.h"
#include "look/FollowAppearance.h"
#include "texts/Vexel.h"

#include "look/Buttons.h"

#include <QEvent>
#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace vexel {

namespace {

constexpr int sheetWidth = 420;
constexpr int toastHeight = 40;

// The window behind a question: dimmed, and catching every click meant for it.
class Backdrop final : public QWidget {
public:
    explicit Backdrop(QWidget* parent)
        : QWidget(parent)
    {
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        // Darker on a dark window, so that the dimming still shows.
        const bool dark = appearanceOf(palette()) == Appearance::dark;
        painter.fillRect(rect(), QColor(0, 0, 0, dark ? 150 : 90));
    }
    void mousePressEvent(QMouseEvent*) override { }
    void wheelEvent(QWheelEvent*) override { }
};

} // namespace

OverlayFrame::OverlayFrame(QWidget* parent)
    : QFrame(parent)
{
    parent->installEventFilter(this);
}

bool OverlayFrame::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Resize && isVisible())
        place();
    return false;
}

ConfirmSheet::ConfirmSheet(QWidget* parent)
    : OverlayFrame(parent)
{
    m_backdrop = new Backdrop(parent);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    auto* shadow = new QGraphicsDropShadowEffect(this);
    shadow->setBlurRadius(28);
    shadow->setOffset(0, 8);
    shadow->setColor(QColor(0, 0, 0, 120));
    setGraphicsEffect(shadow);
    // Lifted off the page: the base colour, a step brighter (or darker) than the window.
    Look::followAppearance(this, [](QWidget* sheet, Appearance) {
        QPalette palette = sheet->palette();
        palette.setColor(QPalette::Window, palette.color(QPalette::Base));
        sheet->setPalette(palette);
    });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(22, 20, 22, 16);
    layout->setSpacing(10);
    m_title = new QLabel(this);
    m_title->setFont(Look::font(14, QFont::DemiBold));
    m_title->setWordWrap(true);
    m_message = new QLabel(this);
    m_message->setFont(Look::font(12));
    m_message->setWordWrap(true);
    layout->addWidget(m_title);
    layout->addWidget(m_message);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    m_cancel = Look::button(Vexel::tr("Cancel"), this);
    m_cancel->setDefault(true);
    m_confirm = Look::button({}, this);
    Look::followAppearance(m_confirm, [this](QWidget*, Appearance appearance) { styleConfirm(appearance); });
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_confirm);
    layout->addLayout(buttons);
    connect(m_cancel, &QPushButton::clicked, this, &ConfirmSheet::cancelled);
    connect(m_confirm, &QPushButton::clicked, this, &ConfirmSheet::confirmed);
    hide();
}

void ConfirmSheet::show(const ConfirmRequest* request)
{
    if (request == nullptr) {
        hide();
        holdWindow(false);
        return;
    }
    m_title->setText(Vexel::say(request->title));
    QString message = Vexel::say(request->message);
    for (const auto& line : request->lines)
        message += u'\n' + Vexel::say(line);
    m_message->setText(message);
    m_confirm->setText(Vexel::say(request->button));
    m_destructive = request->destructive;
    styleConfirm(appearanceOf(palette()));
    holdWindow(true);
    place();
    QFrame::show();
    raise();
    m_cancel->setFocus();
}

void ConfirmSheet::holdWindow(bool held)
{
    if (held && m_held.empty()) {
        for (auto* sibling : parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            if (sibling != this && sibling != m_backdrop && sibling->isEnabled() && !sibling->isWindow()) {
                sibling->setEnabled(false);
                m_held.emplace_back(sibling);
            }
    } else if (!held) {
        for (const auto& sibling : m_held)
            if (sibling)
                sibling->setEnabled(true);
        m_held.clear();
    }
    m_backdrop->setVisible(held);
    if (held)
        m_backdrop->raise();
}

void ConfirmSheet::styleConfirm(Appearance appearance)
{
    QPalette palette = m_confirm->palette();
    palette.setColor(QPalette::ButtonText,
        m_destructive ? Look::destructive(appearance) : this->palette().color(QPalette::ButtonText));
    m_confirm->setPalette(palette);
}

void ConfirmSheet::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        emit cancelled();
        return;
    }
    OverlayFrame::keyPressEvent(event);
}

void ConfirmSheet::place()
{
    const int width = std::min(sheetWidth, parentWidget()->width() - 40);
    // As tall as its wrapped message at this width: a longer language takes more lines.
    setFixedSize(width, std::max(sizeHint().height(), layout()->heightForWidth(width)));
    move((parentWidget()->width() - width) / 2, 24);
    m_backdrop->setGeometry(parentWidget()->rect());
}

QString ConfirmSheet::titleText() const
{
    return m_title->text();
}

QString ConfirmSheet::messageText() const
{
    return m_message->text();
}

ToastBar::ToastBar(QWidget* parent)
    : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setMinimumHeight(toastHeight);
    setAutoFillBackground(true);
    Look::keepColour(this, QPalette::Window, Look::sidebar);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 8, 6, 8);
    m_text = new QLabel(this);
    m_text->setFont(Look::font(12));
    m_text->setWordWrap(true);
    m_close = new QPushButton(QStringLiteral("×"), this);
    m_close->setFlat(true);
    m_close->setToolTip(Vexel::tr("Close"));
    m_close->setFixedWidth(28);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_close);
    connect(m_close, &QPushButton::clicked, this, &ToastBar::closed);
    hide();
}

void ToastBar::show(const std::optional<std::string>& text)
{
    if (!text) {
        hide();
        return;
    }
    m_text->setText(QString::fromStdString(*text));
    QFrame::show();
}

QString ToastBar::text() const
{
    return m_text->text();
}

} // namespace vexel

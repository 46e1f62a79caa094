#pragma once

#include <QPointer>
#include <vector>

#include "Appearance.h"

#include <QFrame>

class QLabel;
class QPushButton;

namespace vexel {

struct ConfirmRequest;

// A frame drawn over the window's content that keeps its place when the
// window is resized.
class OverlayFrame : public QFrame {
public:
    explicit OverlayFrame(QWidget* parent);
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    virtual void place() = 0;
};

// The question asked before anything changes, drawn over the top of the
// window: title, message, Cancel and the action's own button (red when it
// destroys something). Cancel is the default, so Return never destroys.
// While it is asked, the window behind is dimmed and takes no input: the
// question is answered first.
class ConfirmSheet final : public OverlayFrame {
    Q_OBJECT

public:
    explicit ConfirmSheet(QWidget* parent);

    // Shows the request, or hides the sheet when there is none.
    void show(const ConfirmRequest* request);

    [[nodiscard]] QString titleText() const;
    [[nodiscard]] QString messageText() const;
    [[nodiscard]] QPushButton* confirmButton() const { return m_confirm; }
    [[nodiscard]] QPushButton* cancelButton() const { return m_cancel; }

signals:
    void confirmed();
    void cancelled();

protected:
    // Escape answers Cancel, as in any dialog.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void place() override;
    // The action's button in the text colour, or the destructive one.
    void styleConfirm(Appearance appearance);
    // The window behind, dimmed and out of reach, or back as it was.
    void holdWindow(bool held);

    QWidget* m_backdrop = nullptr;
    std::vector<QPointer<QWidget>> m_held; // what the sheet disabled, to enable again
    QLabel* m_title = nullptr;
    QLabel* m_message = nullptr;
    QPushButton* m_cancel = nullptr;
    QPushButton* m_confirm = nullptr;
    bool m_destructive = false;
};

// A short message at the foot of the window's pages with its close button;
// a longer one wraps. It takes its own room below the page rather than
// covering any of it.
class ToastBar final : public QFrame {
    Q_OBJECT

public:
    explicit ToastBar(QWidget* parent);

    // Shows the text, or hides the bar when there is none.
    void show(const std::optional<std::string>& text);
    [[nodiscard]] QString text() const;
    [[nodiscard]] QPushButton* closeButton() const { return m_close; }

signals:
    void closed();

private:
    QLabel* m_text = nullptr;
    QPushButton* m_close = nullptr;
};

} // namespace vexel

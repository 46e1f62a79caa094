#pragma once

// The XDG desktop portal's Settings interface as a desktop serves it, on the
// test's session bus: org.freedesktop.appearance color-scheme answered to
// Read, and changed with SettingChanged as when the user flips dark mode.

#include <QDBusVirtualObject>

namespace vexel::testing {

class FakePortal final : public QDBusVirtualObject {
public:
    // Serves the portal on the session bus with `scheme` (0 no preference,
    // 1 dark, 2 light); serving() says whether the name could be taken.
    explicit FakePortal(unsigned scheme);
    ~FakePortal() override;
    FakePortal(const FakePortal&) = delete;
    FakePortal& operator=(const FakePortal&) = delete;

    [[nodiscard]] bool serving() const { return m_serving; }
    // Changes the scheme and tells whoever listens.
    void setScheme(unsigned scheme);

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;
    [[nodiscard]] QString introspect(const QString& path) const override;

private:
    unsigned m_scheme;
    bool m_serving = false;
};

} // namespace vexel::testing

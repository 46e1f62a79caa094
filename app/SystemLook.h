#pragma once

#include "Appearance.h"

#include <QDBusConnection>
#include <QObject>
#include <QPalette>

#include <optional>

class QDBusMessage;
class QDBusPendingCallWatcher;

namespace vexel {

// The live window's look: the platform's style, font and palette, light or
// dark as the desktop asks through the XDG desktop portal's
// org.freedesktop.appearance color-scheme, read when Vexel starts and
// followed while it runs. Qt 6.4 doesn't read that setting itself, so on
// GNOME its palette stays light on a dark desktop; where the platform's
// palette is of the other appearance than the one asked, Vexel's own
// palette of that appearance stands in for it. Nothing here waits on the bus.
class SystemLook final : public QObject {
    Q_OBJECT

public:
    // The portal's values: 0 no preference, 1 prefer dark, 2 prefer light.
    enum class Scheme : unsigned { noPreference = 0, dark = 1, light = 2 };

    explicit SystemLook(QDBusConnection bus, QObject* parent = nullptr);

    // Puts the platform's palette in place, asks the portal and follows its changes.
    void start();

    [[nodiscard]] Appearance appearance() const;

    // The palette for a scheme: the platform's when it is of the appearance
    // asked (or none is asked), otherwise Vexel's own of that appearance.
    [[nodiscard]] static QPalette paletteFor(Scheme scheme, const QPalette& platform);
    // The scheme a portal's value holds, however deep in variants; nothing
    // for a value that isn't one.
    [[nodiscard]] static std::optional<Scheme> schemeOf(const QVariant& value);

signals:
    void changed(vexel::Appearance appearance);

public slots:
    // The portal's SettingChanged(group, key, value). The bus delivers
    // signals to public slots only, and Qt 6.4 connects none that takes a
    // QDBusVariant, so the slot takes the whole message.
    void settingChanged(const QDBusMessage& message);

private:
    void read(QDBusPendingCallWatcher* call);
    void apply(Scheme scheme);

    QDBusConnection m_bus;
    QPalette m_platform;
    bool m_heardChange = false; // a change arrived: the answer to Read is older
};

} // namespace vexel

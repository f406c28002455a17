#include "window/SystemWishes.h"

#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

#if defined(_WIN32)
#include <windows.h>
#elif GATEWISE_HAS_DBUS
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#endif

namespace gatewise::window {

#if defined(_WIN32)

void askWishes(QObject*, std::function<void(const Wishes&)> tell) {
    Wishes wishes;
    HIGHCONTRASTW contrast{sizeof contrast, 0, nullptr};
    if (SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != 0)
        wishes.highContrast = (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
    BOOL moving = TRUE;
    if (SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &moving, 0) != 0)
        wishes.stillSigns = moving == FALSE;
    DWORD percent = 100;
    DWORD size = sizeof percent;
    if (RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Accessibility", L"TextScaleFactor",
                     RRF_RT_REG_DWORD, nullptr, &percent, &size) == ERROR_SUCCESS &&
        percent >= 100 && percent <= 225)
        wishes.textScale = percent / 100.0;
    tell(wishes);
}

#elif GATEWISE_HAS_DBUS

namespace {

/// A setting of the desk and what it says of the wishes.
struct Setting {
    const char* group;
    const char* key;
    void (*take)(Wishes& wishes, const QVariant& value);
};

constexpr Setting kSettings[] = {
    {"org.freedesktop.appearance", "contrast",
     [](Wishes& w, const QVariant& v) { w.highContrast = w.highContrast || v.toUInt() == 1; }},
    {"org.gnome.desktop.a11y.interface", "high-contrast",
     [](Wishes& w, const QVariant& v) { w.highContrast = w.highContrast || v.toBool(); }},
    {"org.gnome.desktop.interface", "enable-animations",
     [](Wishes& w, const QVariant& v) { w.stillSigns = !v.toBool(); }},
    {"org.gnome.desktop.interface", "text-scaling-factor",
     [](Wishes& w, const QVariant& v) {
         if (v.toDouble() >= 0.5 && v.toDouble() <= 3) w.textScale = v.toDouble();
     }},
};

/// The value inside of the boxes that the answer comes in.
QVariant unpacked(QVariant value) {
    while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

void askWishes(QObject* owner, std::function<void(const Wishes&)> tell) {
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return;
    const auto wishes = std::make_shared<Wishes>();
    for (const Setting& setting : kSettings) {
        QDBusMessage question = QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop",
                                                               "/org/freedesktop/portal/desktop",
                                                               "org.freedesktop.portal.Settings", "Read");
        question << QString(setting.group) << QString(setting.key);
        auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), owner);
        QObject::connect(answer, &QDBusPendingCallWatcher::finished, owner,
                         [wishes, tell, &setting](QDBusPendingCallWatcher* done) {
                             const QDBusPendingReply<QDBusVariant> reply = *done;
                             done->deleteLater();
                             if (reply.isError()) return; // no such desk, or none of that setting
                             setting.take(*wishes, unpacked(reply.value().variant()));
                             tell(*wishes);
                         });
    }
}

#else

void askWishes(QObject*, std::function<void(const Wishes&)>) {}

#endif

} // namespace gatewise::window

#include "state/settings_store.h"

using namespace Qt::StringLiterals;

namespace global {
namespace {

QString place(const QObject &window, const QString &key) {
    return window.objectName() + u'/' + key;
}

}  // namespace

beállítástár::beállítástár() : store_(QSettings::NativeFormat, QSettings::UserScope, u"Zimbora"_s, u"szotar"_s) {
    // Of this user only.
    store_.setFallbacksEnabled(false);
}

beállítástár::beállítástár(const QString &file) : store_(file, QSettings::IniFormat) {}

void beállítástár::beállításment(const QObject &window, const QString &key, const QVariant &value) {
    store_.setValue(place(window, key), value.toString());
}

QVariant beállítástár::beállításolvas(const QObject &window, const QString &key, const QVariant &fallback) const {
    return store_.value(place(window, key), fallback);
}

}  // namespace global

#include "state/settings_store.h"

#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace global {
namespace {

const QString organization = u"Zimbora"_s;
const QString application = u"szotar"_s;

/// Where the toolkit keeps the settings of a user, except on Windows, where it is no file.
QString user_file() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + organization + u'/' +
           application + u".conf"_s;
}

/// Opening a pipe or a device might never end.
bool is_readable(const QString &file) {
    const QFileInfo what(file);
    return !what.exists() || what.isFile();
}

QString place(const QObject &window, const QString &key) {
    return window.objectName() + u'/' + key;
}

}  // namespace

beállítástár::beállítástár() {
    if (is_readable(user_file()))
        store_ = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, organization, application);
    else
        store_ = std::make_unique<QSettings>(QString(), QSettings::IniFormat);
    // Of this user only.
    store_->setFallbacksEnabled(false);
}

beállítástár::beállítástár(const QString &file)
    : store_(std::make_unique<QSettings>(is_readable(file) ? file : QString(), QSettings::IniFormat)) {}

void beállítástár::beállításment(const QObject &window, const QString &key, const QVariant &value) {
    store_->setValue(place(window, key), value.toString());
}

QVariant beállítástár::beállításolvas(const QObject &window, const QString &key, const QVariant &fallback) const {
    return store_->value(place(window, key), fallback);
}

}  // namespace global

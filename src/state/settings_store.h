#pragma once

#include <QObject>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <memory>

namespace global {

/// The user's choices between runs, as text, under the application "szotar", a section for each window and a key. On
/// Windows they lie in the registry, elsewhere in one text file of the user. No caching, no checks: a failing read
/// gives the default, a failing write is silent. What is no ordinary file in the place of theirs is left alone: then
/// they last as long as the program runs.
class beállítástár final {
  public:
    /// The store of the user who runs the program.
    beállítástár();
    /// A store in the text file `file`.
    explicit beállítástár(const QString &file);

    /// Stores `value`, turned into text, in the section of `window`: its objectName.
    void beállításment(const QObject &window, const QString &key, const QVariant &value);

    /// What is stored, as text; `fallback` unchanged, with its own type, when nothing is.
    [[nodiscard]] QVariant beállításolvas(const QObject &window, const QString &key, const QVariant &fallback) const;

  private:
    std::unique_ptr<QSettings> store_;
};

}  // namespace global

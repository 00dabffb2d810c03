#pragma once

#include <QString>
#include <QStringList>

/// File names without a folder, of which one may be selected.
class névlista final {
  public:
    [[nodiscard]] const QStringList &nevek() const { return nevek_; }
    [[nodiscard]] int darab() const { return static_cast<int>(nevek_.size()); }
    /// Index of the selected name; −1 when there is none.
    [[nodiscard]] int kijelölt() const { return kijelölt_; }
    /// Selects a name; none when `index` is −1.
    void kijelöl(int index);

    /// Replaces all names; none is selected then.
    void feltölt(const QStringList &nevek);
    /// Selects `név`, which is put to the end if it is not there yet.
    void hozzáad(const QString &név);
    /// Removes the selected name, if there is one, and selects the one that comes into its place, or the new last one.
    void töröl();
    /// Removes `név`, if it is there, and selects as töröl() does.
    void töröl(const QString &név);
    /// Changes the selected name with the one `távolság` places further down, which is then selected; nothing where
    /// there is none.
    void áthelyez(int távolság);

  private:
    QStringList nevek_;
    int kijelölt_ = -1;
};

/// True for a name of which a list may consist: it can name a file of the list's own folder and no other.
[[nodiscard]] bool mappa_nélküli(const QString &név);

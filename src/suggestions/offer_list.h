#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "suggestions/suggester.h"
#include "suggestions/worker_thread.h"

/// All that suggestions are made of; loads nothing before it is asked. Used on the thread of the questions only.
class ajánlóadatok {
  public:
    virtual ~ajánlóadatok() = default;

    [[nodiscard]] virtual ajánlás ajánl(const ajánlókérdés &kérdés, const std::function<bool()> &elavult) = 0;
    /// What is missing or damaged, each a sentence for the user that names the file; loads what has not been loaded.
    [[nodiscard]] virtual QStringList hiányok() = 0;
};

/// What was probably meant by the text that was looked up last, line by line: the offers, and below them in how many
/// phrases the text stands. The lines of help of all windows are views of it.
///
/// A question is answered on a thread of its own, and the list changes when the answer has come; a newer question drops
/// an older one. Every function is called on the window's thread and returns at once.
class ajánlatlista final : public QAbstractListModel {
  public:
    /// Beside the text of a line: which part of it is the link, in characters.
    enum szerep { hivatkozás_kezdete = Qt::UserRole, hivatkozás_hossza };

    /// `készít` makes what questions are answered from; it is called by the first question, once.
    explicit ajánlatlista(std::function<std::shared_ptr<ajánlóadatok>()> készít);

    enum class mennyit {
        mindent,
        /// Of a text that is a headword: only of which others it may be a form ("left": "to leave").
        csak_alakokat,
    };
    /// Lists what was probably meant by a text.
    void kérdez(const ajánlókérdés &kérdés, mennyit mit = mennyit::mindent);
    /// Lists nothing; what has been asked is not answered any more.
    void kiürít();
    /// Finds out what is missing of all that suggestions are made of, and tells it to `kinek` unless something else is
    /// asked meanwhile.
    void hiányokat_kérdez(std::function<void(const QStringList &hiányok)> kinek);

    [[nodiscard]] int darab() const;
    /// True for the line that tells the number of phrases.
    [[nodiscard]] bool kifejezések_sora(int i) const;
    /// The offer of line `i`, which is not that of the phrases.
    [[nodiscard]] ajánlat egyik(int i) const { return ajánlás_.ajánlatok.value(i); }
    /// The text that the lines are about.
    [[nodiscard]] const QString &szöveg() const { return kérdés_.szöveg; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

  private:
    void mutat(const ajánlókérdés &kérdés, const ajánlás &válasz);

    [[nodiscard]] const std::shared_ptr<ajánlóadatok> &adatok();

    const std::function<std::shared_ptr<ajánlóadatok>()> készít_;
    std::shared_ptr<ajánlóadatok> adatok_;
    ajánlókérdés kérdés_;
    ajánlás ajánlás_;
    /// The last member: its end awaits the work that runs.
    munkaszál szál_;
};

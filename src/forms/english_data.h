#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <vector>

// The file of English exceptions is made of WordNet's files at build time. It is text, in lines of ASCII in byte order
// behind a notice, whose lines begin with "#":
//
//     <n, v, a, r> <form> <base> [<base> …]     a form that the rules do not lead to its base
//     <N, V, A, R> <word> <count>               how often texts have the word
//
// The letters are noun, verb, adjective and adverb. Every shorter adjective is there, so one that is not is none.

enum class angol_szófaj { főnév, ige, melléknév, határozó };

/// What the rules of English cannot tell.
class angol_adatok final {
  public:
    angol_adatok() = default;
    explicit angol_adatok(QByteArray fájl);

    /// Bases of an irregular form; mostly empty.
    [[nodiscard]] QStringList alapalakok(angol_szófaj szófaj, const QString &alak) const;
    /// The irregular forms of a base.
    [[nodiscard]] QStringList alakok(angol_szófaj szófaj, const QString &alapalak) const;
    /// How often texts have the word as this part of speech; −1 when it is not known as one.
    [[nodiscard]] int gyakoriság(angol_szófaj szófaj, const QString &szó) const;

  private:
    [[nodiscard]] QByteArrayView sor(const QByteArray &kezdet) const;

    QByteArray fájl_;
    /// Into `fájl_`, in byte order.
    std::vector<QByteArrayView> sorok_;
};

#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <memory>

/// Takes words of a language apart. One question at a time.
class szóelemző {
  public:
    virtual ~szóelemző() = default;

    /// All analyses of a word, in UTF-8 as the question is, each as the dictionary of the language writes it; empty for
    /// a word that it does not know.
    [[nodiscard]] virtual QByteArrayList elemzések(const QByteArray &szó) const = 0;
};

/// Loads the rules and the words of a language, files of the spelling checker Hunspell. Both must be whole: what the
/// library makes of others cannot be told. Null when the library cannot be loaded.
[[nodiscard]] std::unique_ptr<szóelemző> load_hunspell(const QString &rules, const QString &words);

/// Under this name the plug-in has its maker, of type MorphologyMaker; it gets the paths as the library wants them.
inline constexpr const char *morphology_maker = "zimbora_make_morphology";
extern "C" {
using MorphologyMaker = szóelemző *(*)(const char *rules, const char *words);
}

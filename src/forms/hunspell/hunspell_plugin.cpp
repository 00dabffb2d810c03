#include <hunspell/hunspell.hxx>

#include "forms/morphology.h"

namespace {

class hunspellelemző final : public szóelemző {
  public:
    hunspellelemző(const char *rules, const char *words) : hunspell_(rules, words) {}

    QByteArrayList elemzések(const QByteArray &szó) const override {
        QByteArrayList all;
        for (const std::string &analysis : hunspell_.analyze(szó.toStdString()))
            all.append(QByteArray::fromStdString(analysis));
        return all;
    }

  private:
    // Its questions change nothing that can be seen, but are not declared so.
    mutable Hunspell hunspell_;
};

}  // namespace

extern "C" {
Q_DECL_EXPORT szóelemző *zimbora_make_morphology(const char *rules, const char *words);
}

szóelemző *zimbora_make_morphology(const char *rules, const char *words) {
    return new hunspellelemző(rules, words);
}

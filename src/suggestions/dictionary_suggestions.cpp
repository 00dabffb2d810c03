#include "suggestions/dictionary_suggestions.h"

#include <utility>

szótárajánló::szótárajánló(const QString &programkönyvtár, std::shared_ptr<nyelvismeret> ismeret)
    : ismeret_(std::move(ismeret)),
      kifejezések_(programkönyvtár, {.angol = &ismeret_->angol_alakok, .magyar = &ismeret_->magyar_alakok}),
      ajánló_({.angol_címszavak = ismeret_->angol_címszavak,
               .magyar_címszavak = ismeret_->magyar_címszavak,
               .angol_alakok = &ismeret_->angol_alakok,
               .magyar_alakok = &ismeret_->magyar_alakok,
               .kifejezések = &kifejezések_}) {}

ajánlás szótárajánló::ajánl(const ajánlókérdés &kérdés, const std::function<bool()> &elavult) {
    return ajánló_.ajánl(kérdés, elavult);
}

QStringList szótárajánló::hiányok() {
    return ajánló_.hiányok();
}

kifejezéslista::keresés kifejezéskeresés(const QString &programkönyvtár, const std::shared_ptr<nyelvismeret> &ismeret) {
    const auto kereső = std::make_shared<kifejezéskereső>(
        programkönyvtár, kifejezéskereső::elemzők{.angol = &ismeret->angol_alakok, .magyar = &ismeret->magyar_alakok});
    // The knowledge stays as long as the search does.
    return [kereső, ismeret](const QString &szöveg, const kifejezésfigyelő &figyelő) {
        return kereső->keres(szöveg, figyelő);
    };
}

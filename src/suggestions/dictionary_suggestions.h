#pragma once

#include <QString>
#include <memory>

#include "suggestions/language_knowledge.h"
#include "suggestions/offer_list.h"
#include "suggestions/phrase_list.h"

/// Suggestions of the dictionaries in a program folder.
class szótárajánló final : public ajánlóadatok {
  public:
    szótárajánló(const QString &programkönyvtár, std::shared_ptr<nyelvismeret> ismeret);

    [[nodiscard]] ajánlás ajánl(const ajánlókérdés &kérdés, const std::function<bool()> &elavult) override;
    [[nodiscard]] QStringList hiányok() override;

  private:
    const std::shared_ptr<nyelvismeret> ismeret_;
    kifejezéskereső kifejezések_;
    ajánló ajánló_;
};

/// Searches the phrases of the dictionaries in a program folder.
[[nodiscard]] kifejezéslista::keresés kifejezéskeresés(const QString &programkönyvtár,
                                                       const std::shared_ptr<nyelvismeret> &ismeret);

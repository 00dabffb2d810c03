#pragma once

#include <QString>
#include <QStringList>

#include "forms/form_reader.h"
#include "suggestions/headword_list.h"

/// Headwords whose parts stand apart in a text, which may be a sentence: an English verb with its particle behind the
/// object ("turned it off": "to turn off"), a Hungarian preverb behind its verb or before an auxiliary and the
/// infinitive ("hívta fel", "fel fogom hívni": "felhív"). Only where both parts stand in the text and there is such a
/// headword. Without an analyser the verb is only known in its base form.
namespace szétvált_egységek {

/// With their "to ", the likelier first.
[[nodiscard]] QStringList angol(const QString &szöveg, címszólista &címszavak, alakelemző *alakok);
[[nodiscard]] QStringList magyar(const QString &szöveg, címszólista &címszavak, alakelemző *alakok);

}  // namespace szétvált_egységek

#pragma once

#include <QString>

#include "forms/english_forms.h"
#include "forms/hungarian_forms.h"
#include "suggestions/headword_list.h"

/// What the program knows of both languages beside the entries of their dictionaries: headwords and inflected forms.
/// The windows share one object, because the Hungarian analysis alone takes 17 MiB. Nothing is loaded before the first
/// question; any thread may ask.
struct nyelvismeret {
    explicit nyelvismeret(const QString &programkönyvtár);

    címszólista angol_címszavak;
    címszólista magyar_címszavak;
    angol_alakelemző angol_alakok;
    magyar_alakelemző magyar_alakok;
};

#pragma once

#include "forms/english_forms.h"
#include "forms/hungarian_forms.h"
#include "state/program_folder.h"
#include "suggestions/suggester.h"
#include "support/test_places.h"

/// All that suggestions are made of, of the dictionaries of this build.
struct RealSuggestions {
    címszólista english{test_places::program(), címszólista::nyelv::angol};
    címszólista hungarian{test_places::program(), címszólista::nyelv::magyar};
    angol_alakelemző english_forms{test_places::in_program(form_data_folder), english.kérdések()};
    magyar_alakelemző hungarian_forms{test_places::in_program(form_data_folder), hungarian.kérdések()};
    kifejezéskereső phrases{test_places::program(), {.angol = &english_forms, .magyar = &hungarian_forms}};
    ajánló suggester{{.angol_címszavak = english,
                      .magyar_címszavak = hungarian,
                      .angol_alakok = &english_forms,
                      .magyar_alakok = &hungarian_forms,
                      .kifejezések = &phrases}};
};

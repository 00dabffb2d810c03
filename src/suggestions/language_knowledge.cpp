#include "suggestions/language_knowledge.h"

#include "state/program_folder.h"

nyelvismeret::nyelvismeret(const QString &programkönyvtár)
    : angol_címszavak(programkönyvtár, címszólista::nyelv::angol),
      magyar_címszavak(programkönyvtár, címszólista::nyelv::magyar),
      angol_alakok(programkönyvtár + u'/' + form_data_folder, angol_címszavak.kérdések()),
      magyar_alakok(programkönyvtár + u'/' + form_data_folder, magyar_címszavak.kérdések()) {}

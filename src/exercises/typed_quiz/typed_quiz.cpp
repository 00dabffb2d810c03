#include "exercises/typed_quiz/typed_quiz.h"

kikérdezés::kikérdezés(const QVector<szópár> &szavak, RandomNumbers &véletlen)
    : sor_(szavak, véletlen), véletlen_(véletlen) {}

bool kikérdezés::irányváltás(irány új) {
    irány_ = új;
    if (sor_.utolsó() == 0)
        return false;
    sor_.újrakezd();
    kérdez();
    return true;
}

void kikérdezés::kérdez() {
    véletlen_.reseed();
    aktuális_ = sor_.kihúz();
    switch (irány_) {
        case irány::angolról:
            nyelv_ = kérdésnyelv::angol;
            break;
        case irány::magyarról:
            nyelv_ = kérdésnyelv::magyar;
            break;
        case irány::változó:
            nyelv_ = véletlen_.next() <= 0.5 ? kérdésnyelv::magyar : kérdésnyelv::angol;
            break;
    }
}

kikérdezés::eredmény kikérdezés::ellenőriz(const QString &válasz) {
    if (válasz != megoldás()) {
        sor_.hibázott(aktuális_);
        sor_.visszatesz(aktuális_);
        return eredmény::hibás;
    }
    return sor_.végére_ért() ? eredmény::vége : eredmény::helyes;
}

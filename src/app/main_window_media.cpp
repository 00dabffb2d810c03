#include "app/main_window.h"

void szótár::hang_eseményeket_köt() {
    connect(m_.mnubeállításhang, &QAction::triggered, &események_, [this] { mnubeállításhang_Click(); });
    connect(m_.mnubeállítászene, &QAction::triggered, &események_, [this] { mnubeállítászene_Click(); });
}

hangkörnyezet szótár::hangoknak() {
    return {k_.állapot.programkönyvtár, k_.meghajtó, k_.hasznos, *this, k_.üzenetek, játszó_};
}

void szótár::mnubeállításhang_Click() {
    hangbeáll_.get().mutat();
}

void szótár::mnubeállítászene_Click() {
    zenebeáll_.get().mutat();
}

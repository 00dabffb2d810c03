#include "app/main_window.h"

void szótár::nyomtatás_eseményeket_köt() {
    connect(m_.mnufájlnyomtatás, &QAction::triggered, &események_, [this] { mnufájlnyomtatás_Click(); });
}

nyomtatáskörnyezet szótár::nyomtatásnak() {
    return {*this, k_.állapot, k_.hasznos, *this, k_.beállítások, k_.üzenetek, k_.fájlablakok, k_.nyomtatók, k_.óra};
}

void szótár::mnufájlnyomtatás_Click() {
    nyomtatás_.get().mutatmodálisan();
    nyomtatás_.unload();
}

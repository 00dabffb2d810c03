#include "platform/print_spooler.h"

std::unique_ptr<PrintSpooler> make_print_spooler() {
    // A printer of Windows takes what is drawn on it.
    return nullptr;
}

#include <windows.h>

#include "platform/code_page.h"

namespace code_page {

std::array<char16_t, 256> system_table() {
    constexpr UINT central_european = 1250;
    std::array<char16_t, 256> table{};
    for (size_t byte = 0; byte < table.size(); ++byte) {
        const char one = static_cast<char>(byte);
        wchar_t character = 0;
        if (MultiByteToWideChar(central_european, 0, &one, 1, &character, 1) != 1)
            qFatal("This system does not know windows-1250.");
        table[byte] = static_cast<char16_t>(character);
    }
    return table;
}

}  // namespace code_page

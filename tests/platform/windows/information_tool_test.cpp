#include <gtest/gtest.h>
#include <windows.h>

#include <QDir>
#include <QTemporaryDir>

#include "platform/information_tool.h"
#include "platform/windows/information_tool_path.h"
#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const wchar_t *stand_in = L"Software\\Zimbora tests\\machine";
constexpr const wchar_t *tool = L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr const wchar_t *folders = L"SOFTWARE\\Microsoft\\Shared Tools Location";

/// In place of the machine's part of the registry an empty one, which goes with the test.
class InformationToolPath : public testing::Test {
  protected:
    InformationToolPath() {
        RegDeleteTreeW(HKEY_CURRENT_USER, stand_in);
        RegCreateKeyExW(HKEY_CURRENT_USER, stand_in, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &machine_, nullptr);
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine_);
    }

    ~InformationToolPath() override {
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegCloseKey(machine_);
        RegDeleteTreeW(HKEY_CURRENT_USER, stand_in);
    }

    InformationToolPath(const InformationToolPath &) = delete;
    InformationToolPath &operator=(const InformationToolPath &) = delete;

    static void set(const wchar_t *key, const wchar_t *name, const QString &text, DWORD type = REG_SZ) {
        const std::wstring value = text.toStdWString();
        ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, name, type, value.c_str(),
                                  static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
    }

  private:
    HKEY machine_ = nullptr;
};

TEST_F(InformationToolPath, is_what_the_registry_says_of_the_tool) {
    set(tool, L"PATH", u"C:\\Eszközök\\msinfo32.exe"_s);
    set(folders, L"MSINFO", u"C:\\másik"_s);

    EXPECT_EQ(information_tool_path(), u"C:\\Eszközök\\msinfo32.exe"_s);
}

TEST_F(InformationToolPath, has_variables_of_the_environment_put_in) {
    SetEnvironmentVariableW(L"ZIMBORA_TEST_FOLDER", L"C:\\mappa");
    set(tool, L"PATH", u"%ZIMBORA_TEST_FOLDER%\\msinfo32.exe"_s, REG_EXPAND_SZ);

    EXPECT_EQ(information_tool_path(), u"C:\\mappa\\msinfo32.exe"_s);
}

TEST_F(InformationToolPath, is_otherwise_in_the_folder_of_shared_tools_if_it_is_there) {
    const QTemporaryDir folder;
    const QString native = QDir::toNativeSeparators(folder.path());
    set(folders, L"MSINFO", native);
    EXPECT_EQ(information_tool_path(), std::nullopt);

    write_file(folder.filePath(u"MSINFO32.EXE"_s), "a program");

    EXPECT_EQ(information_tool_path(), native + u"\\MSINFO32.EXE"_s);
}

TEST_F(InformationToolPath, is_missing_in_an_empty_registry) {
    EXPECT_EQ(information_tool_path(), std::nullopt);
    EXPECT_EQ(start_information_tool(), InformationTool::unavailable);
}

TEST_F(InformationToolPath, that_leads_nowhere_starts_nothing) {
    set(tool, L"PATH", u"C:\\nincs\\ilyen.exe"_s);

    EXPECT_EQ(start_information_tool(), InformationTool::unavailable);
}

TEST_F(InformationToolPath, of_a_program_starts_it) {
    set(tool, L"PATH", u"C:\\windows\\system32\\hostname.exe"_s);

    EXPECT_EQ(start_information_tool(), InformationTool::started);
}

TEST_F(InformationToolPath, of_number_type_is_turned_into_hexadecimal_text) {
    const DWORD number = 0xbeef;
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, tool, L"PATH", REG_DWORD, &number, sizeof number);

    EXPECT_EQ(machine_registry_text(tool, L"PATH"), u"&hBEEF"_s);
}

}  // namespace

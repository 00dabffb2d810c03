#include "ui/messages/toolkit_texts.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileIconProvider>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <memory>

#include "support/printing.h"

namespace {

class ToolkitTexts : public testing::Test {
  protected:
    static void SetUpTestSuite() { make_toolkit_hungarian(); }
};

TEST_F(ToolkitTexts, of_dialog_buttons_are_hungarian) {
    const QDialogButtonBox box(QDialogButtonBox::Yes | QDialogButtonBox::No | QDialogButtonBox::Cancel);

    EXPECT_EQ(box.button(QDialogButtonBox::Yes)->text(), QStringLiteral("&Igen"));
    EXPECT_EQ(box.button(QDialogButtonBox::No)->text(), QStringLiteral("&Nem"));
    EXPECT_EQ(box.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Mégse"));
}

TEST_F(ToolkitTexts, of_a_text_boxs_menu_are_hungarian) {
    QLineEdit box;
    const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());

    const QString undo = menu->actions().front()->text();

    EXPECT_TRUE(undo.contains(QStringLiteral("isszavon"))) << undo.toStdString();
}

TEST_F(ToolkitTexts, of_the_file_dialogs_kinds_of_files_are_hungarian) {
    const QFileIconProvider kinds;

    EXPECT_EQ(kinds.type(QFileInfo(QDir::tempPath())), QStringLiteral("Mappa"));
    EXPECT_EQ(QCoreApplication::translate("QAbstractFileIconProvider", "Unknown"), QStringLiteral("Ismeretlen"));
}

}  // namespace

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

using namespace Qt::StringLiterals;

namespace {

class ToolkitTexts : public testing::Test {
  protected:
    static void SetUpTestSuite() { make_toolkit_hungarian(); }
};

TEST_F(ToolkitTexts, of_dialog_buttons_are_hungarian) {
    const QDialogButtonBox box(QDialogButtonBox::Yes | QDialogButtonBox::No | QDialogButtonBox::Cancel);

    EXPECT_EQ(box.button(QDialogButtonBox::Yes)->text(), u"&Igen"_s);
    EXPECT_EQ(box.button(QDialogButtonBox::No)->text(), u"&Nem"_s);
    // As the program's own windows say it.
    EXPECT_EQ(box.button(QDialogButtonBox::Cancel)->text(), u"Mégsem"_s);
}

TEST_F(ToolkitTexts, of_a_text_boxs_menu_are_hungarian) {
    QLineEdit box;
    const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());

    const QString undo = menu->actions().front()->text();

    EXPECT_TRUE(undo.contains(u"isszavon"_s)) << undo.toStdString();
}

TEST_F(ToolkitTexts, of_the_file_dialogs_kinds_of_files_are_hungarian) {
    const QFileIconProvider kinds;

    EXPECT_EQ(kinds.type(QFileInfo(QDir::tempPath())), u"Mappa"_s);
    EXPECT_EQ(QCoreApplication::translate("QAbstractFileIconProvider", "Unknown"), u"Ismeretlen"_s);
}

}  // namespace

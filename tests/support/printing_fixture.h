#pragma once

#include <QDir>
#include <QProgressDialog>

#include "support/print_fixture.h"

using namespace Qt::StringLiterals;

/// What becomes of a print-out that is started in the print settings.
class Printing : public PrintTest {
  protected:
    void print() { click("cmd_nyomtat"); }

    /// The print-out has failed or was cancelled: the window is as it was, and nothing is stored.
    void expect_still_open(const QStringList &before) const {
        EXPECT_TRUE(window_->isVisible());
        EXPECT_EQ(shown(), before);
        EXPECT_TRUE(nothing_is_stored());
    }

    /// Presses the button of the progress as soon as it is there.
    void cancel_when_it_takes_long() {
        QTimer::singleShot(0, window_.get(), [this] {
            auto *progress = window_->findChild<QProgressDialog *>(u"haladás"_s);
            ASSERT_NE(progress, nullptr);
            progress_text_ = progress->labelText();
            auto *button = progress->findChild<QPushButton *>();
            EXPECT_EQ(button->text(), u"Mégsem"_s);
            button->click();
        });
    }

    QString progress_text_;
};

/// The same into a PDF file, without any printer.
class PrintingIntoFile : public Printing {
  protected:
    PrintingIntoFile() { printers_.installed.clear(); }

    [[nodiscard]] static bool is_whole_pdf(const QString &path) {
        const QByteArray bytes = read_file(path);
        return bytes.startsWith("%PDF-") && bytes.trimmed().endsWith("%%EOF");
    }
    [[nodiscard]] QStringList files() const {
        return QDir(root_.path()).entryList({u"*pdf*"_s}, QDir::Files | QDir::Hidden);
    }
};

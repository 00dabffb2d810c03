#include "ui/qt_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace {

const QString word_list_filter = QStringLiteral("Szószedet fájl (*.szs)");

Answer answer_of(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::yes;
        case QMessageBox::No:
            return Answer::no;
        default:
            return Answer::cancel;
    }
}

/// A message is plain text: a word that looks like markup must not be taken for it.
int ask(QWidget *window, const QString &title, const QString &text, QMessageBox::Icon icon,
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton escape) {
    QMessageBox box(icon, title, text, buttons, window);
    box.setTextFormat(Qt::PlainText);
    box.setEscapeButton(escape);
    return box.exec();
}

/// The part of a path that names a folder, for a path whose last part is a pattern or a file.
QString folder_of(const QString &proposal) {
    return QFileInfo(proposal).path();
}

}  // namespace

void QtMessageBoxes::tell(const QString &text) {
    ask(window_, QStringLiteral("Zimbora"), text, QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok);
}

Answer QtMessageBoxes::ask_yes_no(const QString &title, const QString &text) {
    return answer_of(
        ask(window_, title, text, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No));
}

Answer QtMessageBoxes::ask_yes_no_cancel(const QString &title, const QString &text) {
    return answer_of(ask(window_, title, text, QMessageBox::Question,
                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel));
}

void QtMessageBoxes::beep() {
    QApplication::beep();
}

std::optional<QString> QtFileDialogs::open(const QString &proposal) {
    const QString start = proposal.contains(u'*') ? folder_of(proposal) : proposal;
    const QString chosen = QFileDialog::getOpenFileName(window_, QString(), start, word_list_filter);
    return chosen.isEmpty() ? std::nullopt : std::optional(chosen);
}

std::optional<QString> QtFileDialogs::save(const QString &proposal) {
    const QString chosen = QFileDialog::getSaveFileName(window_, QString(), proposal, word_list_filter, nullptr,
                                                        QFileDialog::DontConfirmOverwrite);
    return chosen.isEmpty() ? std::nullopt : std::optional(chosen);
}

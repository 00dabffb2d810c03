#include "ui/qt_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileIconProvider>
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

/// Tells folders from files and looks into neither: the toolkit's own reads every file of a folder to name its kind,
/// which takes long on a slow drive and does not end for a file that never does.
class PlainKinds final : public QFileIconProvider {
  public:
    using QFileIconProvider::icon;

    [[nodiscard]] QIcon icon(const QFileInfo &info) const override { return icon(info.isDir() ? Folder : File); }

    [[nodiscard]] QString type(const QFileInfo &info) const override {
        return info.isDir() ? QStringLiteral("Mappa") : QStringLiteral("Fájl");
    }
};

std::optional<QString> choose(QWidget *window, QFileDialog::AcceptMode mode, const QString &proposal) {
    PlainKinds kinds;
    QFileDialog dialog(window, QString(), QFileInfo(proposal).path(), word_list_filter);
    dialog.setIconProvider(&kinds);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (!proposal.contains(u'*'))
        dialog.selectFile(proposal);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().front();
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
    return choose(window_, QFileDialog::AcceptOpen, proposal);
}

std::optional<QString> QtFileDialogs::save(const QString &proposal) {
    return choose(window_, QFileDialog::AcceptSave, proposal);
}

#include "ui/messages/qt_dialogs.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>
#include <QToolButton>
#include <QTreeView>
#include <algorithm>

#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

const QString word_list_filter = u"Szószedet fájl (*.szs)"_s;
/// Shows the same files. Where the toolkit finds "*." for saving, it has Windows add the extension, but a name is taken
/// as it was chosen.
const QString saved_word_list_filter = u"Szószedet fájl (*?szs)"_s;
const QString pdf_filter = u"PDF-fájl (*.pdf)"_s;

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

/// What a box stands in front of: a modal window, which would cover the others' boxes; else `window`, or another window
/// of the program that is seen while that one is hidden.
QWidget *seen(QWidget *window) {
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    if (window && window->isVisible())
        return window;
    if (QWidget *active = QApplication::activeWindow())
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto visible = std::find_if(windows.begin(), windows.end(),
                                      [](auto *one) { return one->isVisible() && one->windowType() == Qt::Window; });
    return visible == windows.end() ? nullptr : *visible;
}

/// The letters of a dialog that grows with the screen.
QFont letters(const QWidget &dialog, double points) {
    QFont font = dialog.font();
    // A desktop with larger letters has a reason for them.
    fonts::set_points(font, std::max(points, fonts::points(font)));
    return font;
}

/// A message is plain text: a word that looks like markup must not be taken for it.
class Message : public QMessageBox {
  public:
    struct Content {
        QString title;
        QString text;
        Icon icon;
        StandardButtons buttons;
    };

    Message(QWidget *window, double points, const Content &content)
        : QMessageBox(content.icon, content.title, content.text, content.buttons, seen(window)) {
        setTextFormat(Qt::PlainText);
        setFont(letters(*this, points));
        // The icon grows with the letters, but was made before them.
        setIcon(content.icon);
        keep_wide_enough_for_title();
    }

  private:
    /// The desktop draws the title, in letters of its own.
    void keep_wide_enough_for_title() {
        constexpr int icon_and_buttons = 160;
        QFont bold = QApplication::font("QMdiSubWindowTitleBar");
        bold.setBold(true);
        const int width = QFontMetrics(bold).horizontalAdvance(windowTitle()) + icon_and_buttons;
        if (auto *grid = qobject_cast<QGridLayout *>(layout()))
            grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
};

/// A question without a cancel button: only its buttons answer it, not Escape nor the X of its frame, which could mean
/// either answer.
class UnavoidableQuestion final : public Message {
  public:
    UnavoidableQuestion(QWidget *window, double points, const QString &title, const QString &text)
        : Message(window, points, {.title = title, .text = text, .icon = Question, .buttons = Yes | No}) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        // The end of the program closes every window first, and does not come when one of them refuses.
        if (watched == qApp && event->type() == QEvent::Quit)
            program_ends_ = true;
        return Message::eventFilter(watched, event);
    }

  protected:
    void keyPressEvent(QKeyEvent *event) override {
        if (!event->matches(QKeySequence::Cancel))
            Message::keyPressEvent(event);
    }

    void closeEvent(QCloseEvent *event) override {
        if (program_ends_)
            Message::closeEvent(event);
        else
            event->ignore();
    }

  private:
    bool program_ends_ = false;
};

/// Tells folders from files and looks into neither: the toolkit's own reads every file of a folder to name its kind,
/// which takes long on a slow drive and does not end for a file that never does.
class PlainKinds final : public QFileIconProvider {
  public:
    using QFileIconProvider::icon;

    [[nodiscard]] QIcon icon(const QFileInfo &info) const override { return icon(info.isDir() ? Folder : File); }

    [[nodiscard]] QString type(const QFileInfo &info) const override { return info.isDir() ? u"Mappa"_s : u"Fájl"_s; }
};

/// Gives the toolkit's file dialog the size that its letters ask for, as far as the screen holds it.
void enlarge(QFileDialog &dialog, double points) {
    const QFont font = letters(dialog, points);
    const double ratio = fonts::points(font) / fonts::points(dialog.font());
    dialog.setFont(font);
    dialog.resize((QSizeF(dialog.size()) * ratio).toSize().boundedTo(dialog.screen()->availableSize() * 9 / 10));
    // It measured its columns before.
    for (const auto *list : dialog.findChildren<QTreeView *>()) {
        for (int i = 0; i < list->header()->count(); ++i)
            list->header()->resizeSection(i, qRound(list->header()->sectionSize(i) * ratio));
        list->header()->setStretchLastSection(true);
    }
    for (auto *button : dialog.findChildren<QToolButton *>())
        button->setIconSize(button->iconSize() * ratio);
}

std::optional<QString> choose(QWidget *window, double points, QFileDialog::AcceptMode mode, const QString &proposal,
                              const QString &filter) {
    PlainKinds kinds;
    QFileDialog dialog(seen(window), QString(), QFileInfo(proposal).path(), filter);
    dialog.setIconProvider(&kinds);
    dialog.setAcceptMode(mode);
    // The system's own dialog has no title otherwise.
    dialog.setWindowTitle(mode == QFileDialog::AcceptOpen ? u"Megnyitás"_s : u"Mentés másként"_s);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    if (!proposal.contains(u'*'))
        dialog.selectFile(proposal);
    enlarge(dialog, points);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return QDir::toNativeSeparators(dialog.selectedFiles().front());
}

}  // namespace

void QtMessageBoxes::tell(const QString &text) {
    Message(window_, hasznos_.párbeszédpont(),
            {.title = u"Zimbora"_s, .text = text, .icon = QMessageBox::Warning, .buttons = QMessageBox::Ok})
        .exec();
}

Answer QtMessageBoxes::ask_yes_no(const QString &title, const QString &text) {
    // Anything but Yes is No: the end of the program, too.
    return UnavoidableQuestion(window_, hasznos_.párbeszédpont(), title, text).exec() == QMessageBox::Yes ? Answer::yes
                                                                                                          : Answer::no;
}

Answer QtMessageBoxes::ask_yes_no_cancel(const QString &title, const QString &text) {
    return answer_of(Message(window_, hasznos_.párbeszédpont(),
                             {.title = title,
                              .text = text,
                              .icon = QMessageBox::Question,
                              .buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel})
                         .exec());
}

void QtMessageBoxes::beep() {
    QApplication::beep();
}

std::optional<QString> QtFileDialogs::open(const QString &proposal) {
    return choose(window_, hasznos_.párbeszédpont(), QFileDialog::AcceptOpen, proposal, word_list_filter);
}

std::optional<QString> QtFileDialogs::save(const QString &proposal) {
    return choose(window_, hasznos_.párbeszédpont(), QFileDialog::AcceptSave, proposal, saved_word_list_filter);
}

std::optional<QString> QtFileDialogs::save_pdf(const QString &proposal) {
    return choose(window_, hasznos_.párbeszédpont(), QFileDialog::AcceptSave, proposal, pdf_filter);
}

#include "print/widgets/print_progress.h"

#include <QCoreApplication>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds patience(500);
/// Between two looks of the user at how far it is.
constexpr std::chrono::milliseconds between_looks(40);

}  // namespace

PrintProgress::PrintProgress(QWidget &window, const QFont &letters, QString caption, Clock clock)
    : window_(window), letters_(letters), caption_(std::move(caption)), clock_(std::move(clock)), begun_(clock_()) {}

bool PrintProgress::step(int done, int all) {
    const auto now = clock_();
    if (now - begun_ < patience || (dialog_ && now - shown_ < between_looks))
        return true;
    shown_ = now;
    if (!dialog_)
        open();
    dialog_->setRange(0, all);
    dialog_->setValue(done);
    QCoreApplication::processEvents();
    return !dialog_->wasCanceled();
}

void PrintProgress::open() {
    dialog_ = std::make_unique<QProgressDialog>(caption_, u"Mégsem"_s, 0, 0, &window_);
    dialog_->setObjectName(u"haladás"_s);
    dialog_->setWindowTitle(u"Nyomtatás"_s);
    dialog_->setFont(letters_);
    dialog_->setPalette(window_.palette());
    dialog_->setMinimumWidth(window_.width() / 2);
    dialog_->setWindowModality(Qt::WindowModal);
    dialog_->setAutoClose(false);
    dialog_->setAutoReset(false);
    dialog_->show();
}

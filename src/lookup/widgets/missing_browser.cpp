#include "lookup/widgets/missing_browser.h"

#include <QLabel>

using namespace Qt::StringLiterals;

MissingBrowser::MissingBrowser(const QString &reason) : reason_(std::make_unique<QLabel>(reason)) {
    reason_->setTextFormat(Qt::PlainText);
    reason_->setWordWrap(true);
    reason_->setAlignment(Qt::AlignCenter);
    reason_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

MissingBrowser::~MissingBrowser() = default;

QString MissingBrowser::location_name() const {
    return u"Kavaro - Súgó"_s;
}

QWidget *MissingBrowser::widget() {
    return reason_.get();
}

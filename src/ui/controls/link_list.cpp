#include "ui/controls/link_list.h"

#include <QEvent>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QScrollBar>
#include <QTextFrame>
#include <QUrl>
#include <algorithm>

#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double share_of_letters = 0.85;

}  // namespace

LinkList::LinkList(QAbstractItemModel *model, Roles roles, Layout layout)
    : model_(model), roles_(roles), layout_(layout) {
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
    setOpenLinks(false);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    if (layout == Layout::single_line) {
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setLineWrapMode(QTextEdit::NoWrap);
    }
    hide();
    connect(this, &QTextBrowser::anchorClicked, this,
            [this](const QUrl &link) { Q_EMIT chosen(link.fragment().toInt()); });
    connect(model, &QAbstractItemModel::modelReset, this, [this] { show_lines(); });
}

void LinkList::changeEvent(QEvent *event) {
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    QFont letters = font();
    fonts::set_points(letters, fonts::points(letters) * share_of_letters);
    document()->setDefaultFont(letters);
}

void LinkList::focusInEvent(QFocusEvent *event) {
    QTextBrowser::focusInEvent(event);
    // By itself it would have the focus without any of its links, so that Enter did nothing.
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        focusNextPrevChild(event->reason() == Qt::TabFocusReason);
}

void LinkList::paintEvent(QPaintEvent *event) {
    QTextBrowser::paintEvent(event);
    const QScrollBar &along = *horizontalScrollBar();
    if (layout_ != Layout::single_line || along.value() == along.maximum())
        return;
    const QString more = u" …"_s;
    QPainter painter(viewport());
    painter.setFont(document()->defaultFont());
    QRect place = viewport()->rect();
    place.setLeft(place.right() - painter.fontMetrics().horizontalAdvance(more));
    painter.fillRect(place, window()->palette().color(QPalette::Window));
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, more);
}

void LinkList::show_lines() {
    const int count = model_->rowCount();
    setVisible(count > 0);
    if (count == 0)
        return;
    QStringList lines;
    QStringList plain;
    for (int i = 0; i < count; ++i) {
        lines.append(html_of(model_->index(i, 0)));
        plain.append(model_->index(i, 0).data().toString());
    }
    setHtml(lines.join(layout_ == Layout::lines ? u"<br>"_s : u" &nbsp; "_s));
    setToolTip(plain.join(u'\n'));
    if (layout_ == Layout::single_line)
        put_in_the_middle();
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
}

void LinkList::put_in_the_middle() {
    QTextFrame &lines = *document()->rootFrame();
    QTextFrameFormat format = lines.frameFormat();
    const int room = height() - QFontMetrics(document()->defaultFont()).height();
    format.setTopMargin(std::max(room, 0) / 2.0);
    lines.setFrameFormat(format);
}

QString LinkList::html_of(const QModelIndex &line) const {
    const QString text = line.data().toString();
    const qsizetype start = line.data(roles_.link_start).toInt();
    const qsizetype length = line.data(roles_.link_length).toInt();
    return u"%1<a href=\"#%2\">%3</a>%4"_s.arg(text.first(start).toHtmlEscaped(), QString::number(line.row()),
                                               text.sliced(start, length).toHtmlEscaped(),
                                               text.sliced(start + length).toHtmlEscaped());
}

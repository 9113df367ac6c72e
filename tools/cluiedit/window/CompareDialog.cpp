#include "CompareDialog.h"

#include <Qsci/qsciscintilla.h>

#include <QColor>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QList>
#include <QPalette>

#include <algorithm>

namespace cluiedit {

namespace {

QWidget* pane(const QByteArray& text, qsizetype first, qsizetype end, QWidget* parent)
{
    constexpr int Marker = 1;
    auto* view = new QsciScintilla(parent);
    view->setUtf8(true);
    view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    view->setMarginsFont(view->font());
    view->setPaper(view->palette().color(QPalette::Base));
    view->setColor(view->palette().color(QPalette::Text));
    view->setMarginsBackgroundColor(view->palette().color(QPalette::Window));
    view->setMarginsForegroundColor(view->palette().color(QPalette::WindowText));
    view->setText(QString::fromUtf8(text));
    view->setReadOnly(true);
    view->setMarginLineNumbers(0, true);
    view->setMarginWidth(0, QString::number(view->lines()) + u'0');
    view->markerDefine(QsciScintilla::Background, Marker);
    QColor mark = view->palette().color(QPalette::Highlight);
    mark.setAlpha(70);
    view->setMarkerBackgroundColor(mark, Marker);
    for (qsizetype line = first; line < end; ++line) {
        view->markerAdd(static_cast<int>(line), Marker);
    }
    constexpr qsizetype Context = 3;
    view->setFirstVisibleLine(static_cast<int>(std::max<qsizetype>(0, first - Context)));
    return view;
}

} // namespace

LineDifference differenceOf(const QByteArray& here, const QByteArray& there)
{
    const QList<QByteArray> a = here.split('\n');
    const QList<QByteArray> b = there.split('\n');
    const qsizetype most = std::min(a.size(), b.size());
    LineDifference difference{.endHere = a.size(), .endThere = b.size()};
    while (difference.first < most && a.at(difference.first) == b.at(difference.first)) {
        ++difference.first;
    }
    while (std::min(difference.endHere, difference.endThere) > difference.first
           && a.at(difference.endHere - 1) == b.at(difference.endThere - 1)) {
        --difference.endHere;
        --difference.endThere;
    }
    return difference;
}

CompareDialog::CompareDialog(const QByteArray& here, const QByteArray& there, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Compare"));
    const LineDifference difference = differenceOf(here, there);
    auto* layout = new QGridLayout(this);
    auto* hereLabel = new QLabel(tr("&Here, not saved"), this);
    auto* thereLabel = new QLabel(tr("In the &file"), this);
    QWidget* herePane = pane(here, difference.first, difference.endHere, this);
    QWidget* therePane = pane(there, difference.first, difference.endThere, this);
    hereLabel->setBuddy(herePane);
    thereLabel->setBuddy(therePane);
    layout->addWidget(hereLabel, 0, 0);
    layout->addWidget(thereLabel, 0, 1);
    layout->addWidget(herePane, 1, 0);
    layout->addWidget(therePane, 1, 1);
    auto* summary = new QLabel(this);
    summary->setText(difference.isEmpty() ? tr("Both are the same.")
                                          : tr("What differs begins in line %1. Lines marked: %2 here, %3 in the file.")
                                                .arg(difference.first + 1)
                                                .arg(difference.endHere - difference.first)
                                                .arg(difference.endThere - difference.first));
    layout->addWidget(summary, 2, 0, 1, 2);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons, 3, 0, 1, 2);
    resize(1000, 600);
}

} // namespace cluiedit

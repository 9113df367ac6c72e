#include "RepresentationChooser.h"

#include <QStandardItemModel>

namespace cluiedit {

namespace {

constexpr int OwnChoice = -2; // data of the item that stands for no representation

} // namespace

RepresentationChooser::RepresentationChooser(QWidget* parent)
    : QComboBox(parent)
{
    connect(this, &QComboBox::activated, this, [this](int index) {
        const int number = itemData(index).toInt();
        if (number != OwnChoice) {
            emit chosen(number);
        }
    });
}

void RepresentationChooser::offer(const Snapshot& snapshot)
{
    clear();
    const auto* items = qobject_cast<QStandardItemModel*>(model());
    const auto& representations = snapshot.configuration().representations;
    for (qsizetype i = 0; i < representations.size(); ++i) {
        const ConfigRepresentation& each = representations.at(i);
        addItem(each.name(), i);
        QStandardItem* item = items->item(static_cast<int>(i));
        if (snapshot.axes().isRepresentationValid(&each)) {
            item->setToolTip(each.category());
            continue;
        }
        item->setEnabled(false);
        item->setToolTip(
            each.y1().isEmpty() || each.y2().isEmpty()
                ? tr("No axes combination pairs “%1” with “%2”.")
                      .arg(each.x(), each.y1().isEmpty() ? each.y2() : each.y1())
                : tr("No axes combination pairs “%1” with “%2” or “%3”.").arg(each.x(), each.y1(), each.y2()));
    }
}

void RepresentationChooser::mark(std::optional<qsizetype> number)
{
    const int own = findData(OwnChoice);
    if (number) {
        removeItem(own);
        setCurrentIndex(static_cast<int>(*number));
        return;
    }
    if (own < 0) {
        addItem(tr("(own choice)"), OwnChoice);
    }
    setCurrentIndex(findData(OwnChoice));
}

} // namespace cluiedit

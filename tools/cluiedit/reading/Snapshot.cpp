#include "Snapshot.h"

namespace cluiedit {

std::shared_ptr<const Snapshot> makeSnapshot(const QByteArray& text, const QString& name, const std::stop_token& stop)
{
    auto snapshot = std::make_shared<Snapshot>();
    snapshot->text = text;
    snapshot->result = cluiconfig::check::checkText(text, name, stop);
    if (stop.stop_requested()) {
        return nullptr;
    }
    return snapshot;
}

} // namespace cluiedit

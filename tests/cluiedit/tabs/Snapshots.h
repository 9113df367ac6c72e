#pragma once

#include <cluiedit/reading/Snapshot.h>

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <functional>
#include <memory>

/// \file Snapshots.h
/// Documents that the application loads, for the tests of the tabs.

/// REQUIRES: the application loads \p document; otherwise the test fails.
std::shared_ptr<const cluiedit::Snapshot> snapshotOf(const QJsonObject& document);

std::shared_ptr<const cluiedit::Snapshot> shippedSnapshot();

/// A document with nothing in its sections that loads.
std::shared_ptr<const cluiedit::Snapshot> emptySnapshot();

/// Calls \p test with each of \p attempts random changes of the shipped document that still loads. The test fails when
/// there are next to none.
void forRandomSnapshots(int attempts,
                        const std::function<void(const std::shared_ptr<const cluiedit::Snapshot>&)>& test);

/// What stands at the JSON pointer \p pointer of \p root; undefined if nothing does.
QJsonValue valueAt(const QJsonObject& root, const QString& pointer);

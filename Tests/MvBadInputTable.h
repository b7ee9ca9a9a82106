#pragma once

#include "MvHostFixtures.h"

#include <QtTest>

#include <functional>
#include <limits>

// The tables of the bad-input test: each row calls entry points of the library with what a
// careless host may hand them, and says what the refusal gives back. The rows are spread over a
// few files, one per family of entry points; tst_MvBadInput.cpp runs them all.

using Prepare = std::function<void(MvSampleHost&)>;
using Call = std::function<QVariant(MvSampleHost&)>;
using OrphanCall = std::function<QVariant(MvOrphanHost&)>;
using WidgetCall = std::function<QVariant()>;
Q_DECLARE_METATYPE(Prepare)
Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(OrphanCall)
Q_DECLARE_METATYPE(WidgetCall)

namespace MvBadInput {
constexpr qint64 kMaxFrame = std::numeric_limits<qint64>::max();
constexpr qint64 kMinFrame = std::numeric_limits<qint64>::min();
constexpr int kMaxInt = std::numeric_limits<int>::max();
constexpr int kMinInt = std::numeric_limits<int>::min();

inline const Prepare nothing = [](MvSampleHost&) {};
inline const Prepare selectOpening = [](MvSampleHost& p) { p.select({ p.clip(0) }); };
inline const QVariant kNoResult; // a void command

inline QVariant done(bool value)
{
    return QVariant(value);
}

// A row of each table: the refusal's log record is "text|level|function", empty when none is due.
inline void row(const char* name, const Prepare& prepare, const Call& call, const QVariant& result,
    const QString& record = QString())
{
    QTest::newRow(name) << prepare << call << result << record;
}

inline void row(const char* name, const OrphanCall& call, const QVariant& result, const QString& record = QString())
{
    QTest::newRow(name) << call << result << record;
}

inline void row(const char* name, const WidgetCall& call, const QVariant& result)
{
    QTest::newRow(name) << call << result;
}

// Adding media: requests with nothing to add, items that cannot go on, frames past the end.
void addMediaRows();
void addOrphanMediaRows();
// Transitions and effects from the library, and the effect clipboard.
void addTransitionAndEffectRows();
// Copy and paste, the track headers' commands, the sound of the selection.
void addClipboardAndTrackRows();
void addOrphanClipboardAndTrackRows();
}

#pragma once

#include <QLoggingCategory>

// What the app did, for a bug report: quiet unless asked for with
// QT_LOGGING_RULES="vexel.*=true" (or one category, "vexel.panel=true").
//   vexel.sampler  ticks dropped or put off while one runs
//   vexel.history  history failures, files replaced, recording taken over
//   vexel.panel    status areas coming and going, items made
//   vexel.look     the desktop's colour scheme as the portal tells it
//   vexel.actions  signals sent and questions asked
Q_DECLARE_LOGGING_CATEGORY(samplerLog)
Q_DECLARE_LOGGING_CATEGORY(historyLog)
Q_DECLARE_LOGGING_CATEGORY(panelLog)
Q_DECLARE_LOGGING_CATEGORY(lookLog)
Q_DECLARE_LOGGING_CATEGORY(actionsLog)

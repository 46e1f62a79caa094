#include "Logging.h"

// Critical as the least level shown by default: nothing, until the rules ask.
Q_LOGGING_CATEGORY(samplerLog, "vexel.sampler", QtCriticalMsg)
Q_LOGGING_CATEGORY(historyLog, "vexel.history", QtCriticalMsg)
Q_LOGGING_CATEGORY(panelLog, "vexel.panel", QtCriticalMsg)
Q_LOGGING_CATEGORY(lookLog, "vexel.look", QtCriticalMsg)
Q_LOGGING_CATEGORY(actionsLog, "vexel.actions", QtCriticalMsg)

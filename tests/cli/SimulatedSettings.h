// SPDX-License-Identifier: MIT
// Settings of the simulated modem, as NAME=VALUE, for the programs that a test runs; taken back at the end.
#ifndef ORBISDIAL_TESTS_SIMULATEDSETTINGS_H
#define ORBISDIAL_TESTS_SIMULATEDSETTINGS_H

#include <QPair>
#include <QStringList>

class SimulatedSettings {
public:
    explicit SimulatedSettings(const QStringList& settings) {
        for (const QString& setting : settings) {
            const QByteArray name = "ORBISDIAL_SIM_" + setting.section('=', 0, 0).toLatin1();
            m_Before.append({name, qgetenv(name)});
            qputenv(name, setting.section('=', 1).toUtf8());
        }
    }
    ~SimulatedSettings() {
        for (const auto& [name, value] : m_Before) value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
    SimulatedSettings(const SimulatedSettings&) = delete;
    SimulatedSettings& operator=(const SimulatedSettings&) = delete;

private:
    QList<QPair<QByteArray, QByteArray>> m_Before;
};

#endif

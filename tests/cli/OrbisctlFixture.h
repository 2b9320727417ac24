// SPDX-License-Identifier: MIT
// Runs the real orbisctl in a test's own folders, on a simulated card of the network 26201.
#ifndef ORBISDIAL_TESTS_ORBISCTLFIXTURE_H
#define ORBISDIAL_TESTS_ORBISCTLFIXTURE_H

#include "Program.h"
#include "TestFolder.h"

class OrbisctlFixture : public TestFolder {
public:
    OrbisctlFixture() {
        const QString fixtures = ORBISDIAL_SOURCE_DIR "/tests/cli/fixtures/";
        for (const char* file : {"NetConnectConfig.xml", "Operators.xml", "ProfileLib.prof"})
            ship(file, read(fixtures + file));
        ship("SysProfile.prof", "<vrksdoc/>");
        QFile::copy(ORBISDIAL_LIBRARY_DIR "/lang/orbisdial_en.qm", path("library/lang/orbisdial_en.qm"));
        qputenv("ORBISDIAL_DEVICE", "simulated");
        qputenv("ORBISDIAL_SIM_IMSI", "262019876543210");
    }

    static Outcome run(const QStringList& arguments, const QByteArray& input = QByteArray()) {
        return runProgram(ORBISCTL, arguments, input);
    }

    QJsonObject show(const QString& name) const { return run({"--json", "show", "--secrets", "--", name}).json(); }

    void writeUser(const QByteArray& profiles, const QByteArray& defaults = "<Default name=\"\"/>") const {
        write(userFile(),
              "<vrksdoc type='Profile'>\r\n<ProfileGroup>" + profiles + "</ProfileGroup>" + defaults + "</vrksdoc>");
    }
};

#define COMPARE_DONE(outcome)                                       \
    do {                                                            \
        const Outcome done = outcome;                               \
        QVERIFY2(done.status == 0 && done.err.isEmpty(), done.err); \
    } while (false)

// One line that begins with the program's name.
#define COMPARE_REFUSED(outcome, exitStatus, words)                                 \
    do {                                                                            \
        const Outcome refused = outcome;                                            \
        QVERIFY2(refused.err.startsWith("orbisctl: "), refused.err);                \
        QVERIFY2(refused.err.indexOf('\n') == refused.err.size() - 1, refused.err); \
        QVERIFY2(refused.err.contains(QByteArray(words)), refused.err);             \
        QCOMPARE(refused.status, exitStatus);                                       \
    } while (false)

#endif

// SPDX-License-Identifier: MIT
// What the logic asks on the screen. A library of its own, so that a program without windows needs none of theirs.

#include "Change.h"
#include "CommonUtils.h"
#include "NetConnectSettingUILogic.h"
#include "TextValues.h"

namespace {

// Asks the user, in a message box over the import dialog.
class AskUser : public NetConnectClashPolicy {
public:
    explicit AskUser(QWidget* parent)
        : m_pParent(parent),
          m_strClash(text("IDS_NET_TIPS_PROFILEEXIST")),
          m_strCaption(text("IDS_PROMPT_CAPTION")),
          m_bSame(false),
          m_bLast(false) {}

    bool replace(const QString& name) override { return replaceFirstOf(name, 1); }

    bool replaceFirstOf(const QString& name, int count) override {
        if (m_bSame) return m_bLast;
        if (!m_pParent) return false;  // the dialog went while an earlier question was on screen
        const QString question = TextValues::isolated(name) + QLatin1String(" ") + m_strClash;
        const int answer = count > 1 ? askOneForAll(question) : askOne(question);
        m_bLast = answer == CommonUtils::FirstButton;
        return m_bLast;
    }

private:
    int askOne(const QString& question) {
        return CommonUtils::ShowMessage(QMessageBox::Information, m_pParent, m_strCaption, question,
                                        QLatin1String("IDS_YES"), QLatin1String("IDS_NO"), QString(), QString(), true,
                                        Qt::WindowCloseButtonHint);
    }
    int askOneForAll(const QString& question) {
        return CommonUtils::ShowMessage(QMessageBox::Information, m_pParent, m_strCaption, question,
                                        QLatin1String("IDS_YES"), QLatin1String("IDS_NO"),
                                        QLatin1String("IDS_NETCONNECT_MSG_SAME_FOR_REMAINING"), &m_bSame);
    }

    static QString text(const char* id) { return Change::tr(QLatin1String(id), QLatin1String("NetConnectPlugin")); }

    QPointer<QWidget> m_pParent;
    QString m_strClash;
    QString m_strCaption;
    bool m_bSame;  // the last answer counts for the remaining names
    bool m_bLast;
};

}  // namespace

int NetConnectSettingUILogic::ImportDialupProfiles(QStringList* names, QWidget* parent) {
    if (!parent || !m_pXMLParse) return ObjectMissing;
    if (!names) return FileMissing;
    AskUser policy(parent);
    const int status = ImportChosenProfiles(*names, &policy);
    return status == NothingImported || status == ObjectMissing ? status : int(Success);
}

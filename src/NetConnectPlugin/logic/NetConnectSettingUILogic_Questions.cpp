// What the logic asks on the screen. A library of its own, so that a program without windows needs none of theirs.

#include "Change.h"
#include "CommonUtils.h"
#include "NetConnectSettingUILogic.h"

namespace {

// Asks the user, in a message box over the import dialog.
class AskUser : public NetConnectClashPolicy {
public:
    explicit AskUser(QWidget* parent)
        : m_pParent(parent), m_strClash(text("IDS_NET_TIPS_PROFILEEXIST")), m_strCaption(text("IDS_PROMPT_CAPTION")) {}

    bool replace(const QString& name) {
        if (!m_pParent) return false;  // the dialog went while an earlier question was on screen
        const int answer = CommonUtils::ShowMessage(
            QMessageBox::Information, m_pParent, m_strCaption, name + QLatin1String(" ") + m_strClash,
            QLatin1String("IDS_YES"), QLatin1String("IDS_NO"), QString(), QString(), true, Qt::WindowCloseButtonHint);
        return answer == CommonUtils::FirstButton;
    }

private:
    static QString text(const char* id) { return Change::tr(QLatin1String(id), QLatin1String("NetConnectPlugin")); }

    QPointer<QWidget> m_pParent;
    QString m_strClash;
    QString m_strCaption;
};

}  // namespace

int NetConnectSettingUILogic::ImportDialupProfiles(QStringList* names, QWidget* parent) {
    if (!parent || !m_pXMLParse) return ObjectMissing;
    if (!names) return FileMissing;
    AskUser policy(parent);
    const int status = ImportChosenProfiles(*names, &policy);
    return status == NothingImported || status == ObjectMissing ? status : int(Success);
}

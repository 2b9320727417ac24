#include "MainWindow.h"

#include <vrks_simulated.h>

#include <QBoxLayout>
#include <QCloseEvent>
#include <QFileInfo>
#include <QFrame>
#include <QLabel>

#include "ConnectionBar.h"
#include "HostText.h"
#include "ModemPanel.h"
#include "SettingsPages.h"

namespace {

// Why the modem that was asked for can't be had; empty when all is well.
QString modemProblem() {
    const char* problem = nullptr;
    vrks_backend_name(&problem);
    return QString::fromUtf8(problem);
}

QFrame* makeLine() {
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

}  // namespace

MainWindow::MainWindow(QWidget* parent)
    : QWidget(parent),
      m_Bar(new ConnectionBar),
      m_Pages(new SettingsPages),
      m_ModemPanel(vrks_simulated_active() ? new ModemPanel : nullptr),
      m_ProblemLabel(new QLabel) {
    setObjectName(QStringLiteral("Host_MainWindow"));
    m_ProblemLabel->setObjectName(QStringLiteral("Host_Problems"));
    m_ProblemLabel->setTextFormat(Qt::PlainText);
    m_ProblemLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_ProblemLabel->setWordWrap(true);

    auto* middle = new QHBoxLayout;
    middle->addWidget(m_Pages, 1);
    if (m_ModemPanel) middle->addWidget(m_ModemPanel, 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Bar);
    layout->addWidget(makeLine());
    layout->addLayout(middle, 1);
    layout->addWidget(m_ProblemLabel);
    connect(m_Pages, &SettingsPages::acted, this, &MainWindow::refresh);
    retranslate();
}

void MainWindow::setProblems(const QVector<PluginProblem>& problems) {
    m_Problems = problems;
    retranslate();
}

void MainWindow::refresh() {
    m_Bar->refresh();
    if (m_ModemPanel) m_ModemPanel->refresh();
}

void MainWindow::retranslate() {
    setWindowTitle(hostText(m_ModemPanel ? "IDS_HOST_TITLE_SIMULATED" : "IDS_HOST_TITLE"));
    m_Pages->retranslate();
    if (m_ModemPanel) m_ModemPanel->retranslate();
    const QString problems = problemText();
    m_ProblemLabel->setText(problems);
    m_ProblemLabel->setVisible(!problems.isEmpty());
    refresh();
}

QSize MainWindow::sizeHint() const { return QWidget::sizeHint() + QSize(20 * fontMetrics().averageCharWidth(), 0); }

void MainWindow::closeEvent(QCloseEvent* event) { event->setAccepted(m_Pages->finish()); }

QString MainWindow::problemText() const {
    QStringList lines;
    if (!modemProblem().isEmpty()) lines.append(hostText("IDS_HOST_MODEM_PROBLEM", {modemProblem()}));
    for (const PluginProblem& problem : m_Problems) {
        lines.append(hostText("IDS_HOST_PLUGIN_PROBLEM", {QFileInfo(problem.file).fileName(), problem.text()}));
    }
    return lines.join(QLatin1Char('\n'));
}

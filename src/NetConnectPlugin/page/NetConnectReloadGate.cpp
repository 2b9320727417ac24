// SPDX-License-Identifier: MIT
#include "NetConnectReloadGate.h"

#include <QElapsedTimer>
#include <QPointer>

static const int ShortestRest = 10;  // milliseconds

NetConnectReloadGate::NetConnectReloadGate(QObject* parent) : QObject(parent), m_bRequested(false) {
    m_Rest.setSingleShot(true);
    connect(&m_Rest, SIGNAL(timeout()), this, SLOT(open()));
}

void NetConnectReloadGate::close() {
    m_Rest.stop();
    m_bRequested = false;
}

void NetConnectReloadGate::request() {
    m_bRequested = true;
    if (!m_Rest.isActive()) pass();
}

void NetConnectReloadGate::open() {
    if (m_bRequested) pass();
}

void NetConnectReloadGate::pass() {
    m_bRequested = false;
    m_Rest.start(ShortestRest);  // what comes during the reload waits, too
    QElapsedTimer timer;
    timer.start();
    const QPointer<NetConnectReloadGate> self(this);
    emit reload();
    if (self && m_Rest.isActive()) m_Rest.start(qMax(ShortestRest, 2 * int(timer.elapsed())));
}

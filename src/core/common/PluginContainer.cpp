// SPDX-License-Identifier: MIT
#include "PluginContainer.h"

#include <algorithm>

namespace {

template <class Entries, class Predicate>
void removeIf(Entries& entries, Predicate predicate) {
    entries.erase(std::remove_if(entries.begin(), entries.end(), predicate), entries.end());
}

template <class Entries, class Predicate>
bool anyOf(const Entries& entries, Predicate predicate) {
    return std::any_of(entries.cbegin(), entries.cend(), predicate);
}

}  // namespace

QList<PluginContainer::Entry>& PluginContainer::entries() {
    removeIf(m_Entries, [](const Entry& entry) { return entry.plugin.isNull(); });
    return m_Entries;
}

// Plug-ins that nobody searches have no identifier, so that none of them takes it from another.
bool PluginContainer::AddPlugin(QObject* plugin, QString clsid, int kind) {
    if (!plugin) return false;
    if (!clsid.isEmpty() && anyOf(entries(), [&](const Entry& entry) { return entry.clsid == clsid; })) return false;
    m_Entries.append({plugin, clsid, kind});
    return true;
}

void PluginContainer::RemovePlugin(QObject* plugin) {
    removeIf(entries(), [=](const Entry& entry) { return entry.plugin == plugin; });
}

int PluginContainer::GetPluginCount() { return entries().size(); }

QObject* PluginContainer::GetPluginAt(int index) { return entries().value(index).plugin; }

QString PluginContainer::GetClassIdAt(int index) { return entries().value(index).clsid; }

int PluginContainer::GetKindAt(int index) { return entries().value(index).kind; }

bool PluginContainer::Contains(QObject* plugin) {
    return anyOf(entries(), [=](const Entry& entry) { return entry.plugin == plugin; });
}

QObject* PluginContainer::FindPlugin(QString clsid, int kind) {
    if (clsid.isEmpty()) return nullptr;
    for (const Entry& entry : entries())
        if (entry.clsid == clsid && entry.kind == kind) return entry.plugin;
    return nullptr;
}

// SPDX-License-Identifier: MIT
// The presets of the world as a tree: countries, their operators, and their plans.
#ifndef ORBISDIAL_PRESETTREE_H
#define ORBISDIAL_PRESETTREE_H

#include <QSortFilterProxyModel>

#include "IPresetLibrary.h"

class QStandardItem;
class QStandardItemModel;

// Countries and operators stand in the order of the current language, an operator's plans the likeliest first.
class PresetTree : public QSortFilterProxyModel {
    Q_OBJECT

public:
    enum Column { Name, Apn, ColumnCount };

    explicit PresetTree(QObject* parent = nullptr);

    // Takes the names of countries in the current language.
    void fill(const QList<PresetOperator>& operators);

    // Leaves the plans that hold each word, somewhere in the names of the country, here and in English, of the operator
    // and of the plan, in the APN and the network codes. Case, accents, and blanks within a network code don't count.
    void search(const QString& words);

    // How many plans are left.
    int planCount() const;

    // Of the plans that are left the first of an operator whose names, or whose country's, hold every word, and rather
    // of the country that the card's number tells; invalid when none is left.
    QModelIndex likeliestPlan(const QString& imsi) const;

    // Of the operator whose network code the card's number begins with, where there is just one, else of the country;
    // invalid when no operator tells.
    QModelIndex placeOf(const QString& imsi) const;

    // Null for a country; for an operator a preset alone when it has just one.
    const PresetOperator* operatorAt(const QModelIndex& index) const;
    const OperatorPreset* presetAt(const QModelIndex& index) const;

    QString countryAt(const QModelIndex& index) const;

    // What is said of a plan in a line.
    static QString planText(const OperatorPreset& preset);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    void addCountry(const QString& country, const QList<int>& operators);
    void addOperator(int number, const QString& countryNames, QStandardItem* country);
    bool holdsWords(const QString& key) const;
    QModelIndex find(const QString& country, int number) const;
    int level(const QModelIndex& index) const;

    QList<PresetOperator> m_Operators;
    QStandardItemModel* m_Items;
    QStringList m_Words;
};

#endif

#pragma once

#include "model/record/TelescopeFields.h"

#include <QDialog>

#include <string>
#include <vector>

class CResultList;
class CSectionPair;
class QCheckBox;
class QLabel;

/// Two designs side by side in a window beside the workbench: the present one, which it follows, and that of
/// a file. Cross-sections at one scale above, then the values that differ and, if the user wants, the others;
/// rows are copied as lines with TABs.
class CCompareWindow : public QDialog {
    Q_OBJECT

public:
    explicit CCompareWindow(QWidget* parent);

    /// The present design.
    void ShowPresent(const TelescopeFields& fields);
    /// The design of a file; `name` is shown for it (UTF-8).
    void ShowOther(const TelescopeFields& fields, const QString& name);

signals:
    /// The user wants another file.
    void FileWanted();
    /// The user wants one of the copies that were kept of earlier designs.
    void EarlierWanted();

private:
    void Refresh();

    TelescopeFields m_present{};
    TelescopeFields m_other{};
    QString m_otherName;
    QLabel* m_names;
    CSectionPair* m_sections;
    QCheckBox* m_all;
    CResultList* m_list;
};

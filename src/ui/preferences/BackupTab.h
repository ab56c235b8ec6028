#pragma once

#include <QWidget>

class QButtonGroup;
class QTreeWidget;
class QTreeWidgetItem;

namespace lullet {

class BackupCommands;
struct BackupInfo;
struct Services;

// The backup settings: whether each launch makes a copy and how long copies are kept, the list
// of the copies the program made, newest first, and what can be done with each.
class BackupTab final : public QWidget {
    Q_OBJECT
public:
    BackupTab(const Services& services, BackupCommands& commands, QWidget* parent = nullptr);

    QTreeWidget* list() const { return m_list; }

private:
    QWidget* makeOptions();
    QWidget* makeList();
    QWidget* makeActions();
    void reload();
    void addRow(const BackupInfo& info, int at);
    QString selectedPath() const;
    void showMenu(const QPoint& at);
    void restoreSelected();
    void restoreFromFile();
    void deleteSelected();
    void deleteAll();

    const Services& m_services;
    BackupCommands& m_commands;
    QTreeWidget* m_list = nullptr;
    QButtonGroup* m_keep = nullptr;
};

} // namespace lullet

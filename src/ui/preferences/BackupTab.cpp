#include "ui/preferences/BackupTab.h"

#include "core/app/Services.h"
#include "core/backup/Backups.h"
#include "core/settings/Settings.h"
#include "ui/desktop/FileManager.h"
#include "ui/preferences/BackupCommands.h"
#include "ui/widgets/Dialogs.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace lullet {

namespace {

constexpr int pathRole = Qt::UserRole;

QPushButton* button(const QString& text, const char* name, QWidget* parent)
{
    auto* made = new QPushButton(text, parent);
    made->setObjectName(QLatin1String(name));
    return made;
}

} // namespace

BackupTab::BackupTab(const Services& services, BackupCommands& commands, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_commands(commands)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->addWidget(makeOptions());
    layout->addWidget(makeList(), 1);
    layout->addWidget(makeActions());
    reload();
    // A new copy comes in at the top, the safety copy of a restore among them.
    connect(&services.backups, &Backups::backupCreated, this,
            [this](const BackupInfo& info) { addRow(info, 0); });
}

QWidget* BackupTab::makeOptions()
{
    auto* options = new QWidget(this);
    auto* layout = new QVBoxLayout(options);
    layout->setContentsMargins(0, 0, 0, 0);
    Settings& settings = m_services.settings;
    auto* automatic = new QCheckBox(tr("Back up at each launch"), options);
    automatic->setObjectName(QStringLiteral("automaticBackup"));
    automatic->setChecked(settings.automaticBackup());
    connect(automatic, &QCheckBox::toggled, this, [&settings](bool on) {
        settings.setAutomaticBackup(on);
        settings.sync();
    });
    layout->addWidget(automatic);
    // The two choices of how long copies are kept, by the value each writes.
    m_keep = new QButtonGroup(options);
    auto* row = new QHBoxLayout;
    for (const auto& [value, text] :
         {std::pair{0, tr("Keep all backups")}, std::pair{1, tr("Keep backups for a week")}}) {
        auto* choice = new QRadioButton(text, options);
        choice->setObjectName(QStringLiteral("keep%1").arg(value));
        choice->setChecked(settings.backupOption() == value);
        m_keep->addButton(choice, value);
        row->addWidget(choice);
    }
    row->addStretch();
    connect(m_keep, &QButtonGroup::idClicked, this, [&settings](int value) {
        settings.setBackupOption(value);
        settings.sync();
    });
    layout->addLayout(row);
    return options;
}

QWidget* BackupTab::makeList()
{
    m_list = new QTreeWidget(this);
    m_list->setObjectName(QStringLiteral("backups"));
    m_list->setAccessibleName(tr("Backups"));
    m_list->setRootIsDecorated(false);
    m_list->setHeaderLabels({tr("Type"), tr("Date"), tr("Size")});
    m_list->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_list->header()->setStretchLastSection(false);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_list, &QTreeWidget::customContextMenuRequested, this, &BackupTab::showMenu);
    return m_list;
}

QWidget* BackupTab::makeActions()
{
    auto* actions = new QWidget(this);
    auto* rows = new QVBoxLayout(actions);
    rows->setContentsMargins(0, 0, 0, 0);
    // What the row menu does to the selected copy, for the keyboard as well.
    auto* selected = new QHBoxLayout;
    QPushButton* restore = button(tr("Restore…"), "restore", actions);
    QPushButton* remove = button(tr("Delete…"), "delete", actions);
    selected->addWidget(restore);
    selected->addWidget(remove);
    selected->addStretch();
    rows->addLayout(selected);
    const auto enable = [this, restore, remove] {
        restore->setEnabled(m_list->currentItem());
        remove->setEnabled(m_list->currentItem());
    };
    connect(m_list, &QTreeWidget::currentItemChanged, this, enable);
    enable();
    connect(restore, &QPushButton::clicked, this, &BackupTab::restoreSelected);
    connect(remove, &QPushButton::clicked, this, &BackupTab::deleteSelected);
    auto* layout = new QHBoxLayout;
    rows->addLayout(layout);
    QPushButton* backUp = button(tr("Back Up Now…"), "backUpNow", actions);
    QPushButton* fromFile = button(tr("Restore From File…"), "restoreFromFile", actions);
    QPushButton* clear = button(tr("Delete All…"), "deleteAll", actions);
    layout->addWidget(backUp);
    layout->addWidget(fromFile);
    layout->addStretch();
    layout->addWidget(clear);
    connect(backUp, &QPushButton::clicked, this, [this] { m_commands.backUpNow(window()); });
    connect(fromFile, &QPushButton::clicked, this, &BackupTab::restoreFromFile);
    connect(clear, &QPushButton::clicked, this, &BackupTab::deleteAll);
    return actions;
}

void BackupTab::reload()
{
    m_list->clear();
    const std::vector<BackupInfo> entries = m_services.backups.list().entries();
    for (const BackupInfo& info : entries)
        addRow(info, m_list->topLevelItemCount());
}

void BackupTab::addRow(const BackupInfo& info, int at)
{
    const QString when = info.createdDate
                             ? info.createdDate->toString(DateStyle::Medium, DateStyle::Short)
                             : QString();
    // The kind is kept in English in the list of backups.
    const QString kind = QCoreApplication::translate("Backups", info.type.toUtf8().constData());
    auto* row = new QTreeWidgetItem({kind, when, info.sizeDisplay});
    row->setData(0, pathRole, info.path);
    row->setToolTip(1, info.path);
    m_list->insertTopLevelItem(at, row);
}

QString BackupTab::selectedPath() const
{
    const QTreeWidgetItem* row = m_list->currentItem();
    return row ? row->data(0, pathRole).toString() : QString();
}

void BackupTab::showMenu(const QPoint& at)
{
    // Below the last row there is nothing to act on.
    QTreeWidgetItem* row = m_list->itemAt(at);
    if (!row)
        return;
    m_list->setCurrentItem(row);
    const QString path = selectedPath();
    QMenu menu(this);
    connect(menu.addAction(tr("Restore…")), &QAction::triggered, this, &BackupTab::restoreSelected);
    connect(menu.addAction(tr("Save a Copy…")), &QAction::triggered, this,
            [this, path] { m_commands.saveCopyOf(path, window()); });
    connect(menu.addAction(tr("Show in File Manager")), &QAction::triggered, this,
            [path] { FileManager::showFile(path); });
    menu.addSeparator();
    connect(menu.addAction(tr("Delete…")), &QAction::triggered, this, &BackupTab::deleteSelected);
    menu.exec(m_list->viewport()->mapToGlobal(at));
}

void BackupTab::restoreSelected()
{
    const QString path = selectedPath();
    if (!path.isEmpty())
        m_commands.restoreFrom(path, window());
}

void BackupTab::restoreFromFile()
{
    m_commands.restoreFromFile(window());
}

void BackupTab::deleteSelected()
{
    const QString path = selectedPath();
    if (path.isEmpty() || !Dialogs::confirm(window(), tr("Selected backup will be deleted."),
                                            tr("Are you sure to delete ?")))
        return;
    const QString failure = m_services.backups.list().remove(path);
    delete m_list->currentItem();
    if (!failure.isEmpty())
        Dialogs::inform(window(), tr("The backup's file could not be deleted."), failure);
}

void BackupTab::deleteAll()
{
    if (!Dialogs::confirm(window(), tr("All backups will be deleted."),
                          tr("Are you sure to delete ?")))
        return;
    const QString failures = m_services.backups.list().removeAll();
    m_list->clear();
    if (!failures.isEmpty())
        Dialogs::inform(window(), tr("Some backup files could not be deleted."), failures);
}

} // namespace lullet

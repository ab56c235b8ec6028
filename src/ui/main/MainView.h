#pragma once

#include "core/presentation/Sidebar.h"

#include <QWidget>

#include <vector>

class QLineEdit;
class QListWidget;
class QSplitter;

namespace lullet {

class Item;
class Project;
class QuickAddView;
class ViewSwitcher;
struct Services;

// The main window's content: the sidebar of segments and projects, with search and a field for a
// new project, beside the view of the selected entry. What is selected, a segment or a project,
// is this view's own state: the lists it shows are made for it and ask it to move on.
class MainView final : public QWidget {
    Q_OBJECT
public:
    explicit MainView(const Services& services, QWidget* parent = nullptr);

    QListWidget* sidebar() const { return m_sidebar; }
    ViewSwitcher& switcher() const { return *m_switcher; }
    const std::vector<SidebarRow>& rows() const { return m_rows; }
    QuickAddView* quickAddBar() const { return m_quickAdd; }

    // "Today", "Upcoming", ... or "Project" with the selected project.
    QString selectedSegment() const { return m_segment; }
    Project* selectedProject() const { return m_project; }

    // Selects the row of a segment or project by name and shows its view; an unknown name
    // selects "Today".
    void selectSegment(const QString& name);
    void addProject();
    void search(const QString& text);
    // The quick-add bar above the view: opened afresh, or, when open with a name, its task added.
    void showQuickAddBar();
    // The store was restored: the lists are built anew, on the project of that name if there
    // is one, else on the segment shown before.
    void showAfterRestore(const QString& shownProject);
    // The project row's actions.
    void renameProject(Project* project);
    void deleteProject(Project* project, bool ask = true);
    void duplicateProject(Project* project);

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* buildSidebar(QSplitter* splitter);
    QWidget* buildRightSide(QSplitter* splitter);
    void registerViews();
    QWidget* makeList(const QString& segment, Project* project);
    void connectSidebar();
    void listenToChanges();
    void showProjectMenu(const QPoint& pos);
    void loadSidebar();
    void updateCounts();
    void dispatch(int row);
    void selectRowSilently(int row);
    QString rowText(const SidebarRow& row) const;

    const Services& m_services;
    Sidebar m_sidebarRows;
    QLineEdit* m_searchField = nullptr;
    QListWidget* m_sidebar = nullptr;
    QSplitter* m_splitter = nullptr;
    QLineEdit* m_newProject = nullptr;
    ViewSwitcher* m_switcher = nullptr;
    QuickAddView* m_quickAdd = nullptr;
    std::vector<SidebarRow> m_rows;
    QString m_segment = QStringLiteral("Today");
    Project* m_project = nullptr;
    bool m_showingResults = false;
    bool m_selectingSilently = false;
    Project* m_renaming = nullptr;
    bool m_focusPlaced = false;
    // The item the next list made selects: a search result, or the task last added.
    const Item* m_toSelect = nullptr;
};

} // namespace lullet

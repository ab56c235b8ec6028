#pragma once

#include "lists/Segments.h"

#include <QWidget>

#include <vector>

class QLineEdit;
class QListWidget;

namespace lullet {

class AppDelegate;
class QuickAddViewController;
class ViewSwitcher;

// The main window's content: the sidebar of segments and projects, with search and a field for
// a new project, beside the view of the selected entry. The navigation state is the controller's
// strSegmentSelectedNow and objProjectSelectedNow.
class MainViewController final : public QWidget {
    Q_OBJECT
public:
    explicit MainViewController(AppDelegate& app, QWidget* parent = nullptr);

    QListWidget* tblSegments() const { return m_segments; }
    ViewSwitcher& switcher() const { return *m_switcher; }
    const std::vector<SidebarRow>& rows() const { return mArrSegments; }

    // Selects the row of a segment or project by name and shows its view.
    void onSelectSegment(const QString& name);
    void onAddProject();
    void onDoSearch(const QString& text);
    // The quick-add bar above the view: shown, or, when shown, its task added.
    void onQuickAddTask();
    QuickAddViewController* quickAddBar() const { return m_quickAdd; }
    // The project row's actions.
    void onEditProject(Project* project);
    void onDeleteProject(Project* project, bool ask = true);
    void onDuplicateProject(Project* project);

private:
    void loadSegments();
    void updateDefaultSegments();
    void dispatchForRowSelection(int row);
    void selectRowSilently(int row);
    QString rowText(const SidebarRow& row) const;

    AppDelegate& m_app;
    QLineEdit* searchField;
    QListWidget* m_segments;
    QLineEdit* m_newProject;
    ViewSwitcher* m_switcher;
    QuickAddViewController* m_quickAdd = nullptr;
    std::vector<SidebarRow> mArrSegments;
    bool m_showingResults = false;
    bool bDoNotSelectNow = false;
    Project* m_renaming = nullptr;
};

} // namespace lullet

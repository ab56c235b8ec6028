#pragma once

#include "core/presentation/Segment.h"

#include <QWidget>

class QSplitter;

namespace lullet {

class Item;
class Project;
class QuickAddView;
class SidebarView;
class ViewSwitcher;
struct Services;

// The main window's content: the sidebar beside the view of what is shown. What is shown, a
// segment or a project's list, is this view's own state: the lists it makes read it, and ask it
// to move on.
class MainView final : public QWidget {
    Q_OBJECT
public:
    explicit MainView(const Services& services, QWidget* parent = nullptr);

    SidebarView& sidebar() const { return *m_sidebar; }
    ViewSwitcher& switcher() const { return *m_switcher; }
    QuickAddView* quickAddBar() const { return m_quickAdd; }

    // A segment of the sidebar, or Segment::Project with the project shown.
    Segment shownSegment() const { return m_segment; }
    Project* shownProject() const { return m_project; }

    // Shows the segment (a segment above the projects; Project is no segment to show alone).
    void showSegment(Segment segment);
    void showProject(Project* project);
    // The project of that name, compared ignoring case and diacritics; none of that name leaves
    // the view on the segment it shows.
    void showProjectNamed(const QString& name);
    // Where the item is listed, with the item selected.
    void showItem(Item* item);
    // The quick-add bar above the view: opened afresh, or, when open with a name, its task added.
    void showQuickAddBar();
    // The records were read anew (a restore, a sync): the lists are built again, on the project
    // of that name if there is one, else on the segment shown before.
    void showAfterReload(const QString& shownProject);
    // The project row's actions.
    void deleteProject(Project* project, bool ask = true);
    void duplicateProject(Project* project);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* buildRightSide(QSplitter* splitter);
    void registerViews();
    QWidget* makeList(Segment segment, Project* project);
    QWidget* makeAddTaskPanel();
    void connectSidebar();
    void switchTo(View view);
    void showLater(View view);
    void showShown();

    const Services& m_services;
    QSplitter* m_splitter = nullptr;
    SidebarView* m_sidebar = nullptr;
    ViewSwitcher* m_switcher = nullptr;
    QuickAddView* m_quickAdd = nullptr;
    Segment m_segment = Segment::Today;
    Project* m_project = nullptr;
    bool m_focusPlaced = false;
    // The item the next list made selects: a search result, or the task last added.
    const Item* m_toSelect = nullptr;
};

} // namespace lullet

#pragma once

#include "core/presentation/Sidebar.h"

#include <QWidget>

#include <vector>

class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace lullet {

class Item;
class Project;
struct Services;

// The left side of the main window: search, the segments and the projects with their counts, and
// a field for a new project. It says what the user chose; what is shown is the main view's
// business, which tells it back through highlight().
class SidebarView final : public QWidget {
    Q_OBJECT
public:
    explicit SidebarView(const Services& services, QWidget* parent = nullptr);

    QListWidget* list() const { return m_list; }
    QLineEdit* searchField() const { return m_searchField; }
    QLineEdit* newProjectField() const { return m_newProject; }
    // The rows as listed: the sidebar's, or the search's results.
    const std::vector<SidebarRow>& rows() const { return m_rows; }

    // Marks the row of what the main view shows, without choosing it again.
    void highlight(Segment segment, const Project* project);
    // The rows anew, for a changed list of projects or a restored store.
    void reload();
    void clearSearch();
    // The project's name becomes editable in its row; Return renames, Escape leaves it.
    void renameProject(Project* project);
    // Adds the project named in the field, or says why not beside it.
    void addProject();

Q_SIGNALS:
    void segmentChosen(lullet::Segment segment);
    void projectChosen(lullet::Project* project);
    // A search result: the item, to be shown where it is listed.
    void resultChosen(lullet::Item* item);
    void quickAddRequested();
    void projectAdded(lullet::Project* project);
    void deleteRequested(lullet::Project* project);
    void duplicateRequested(lullet::Project* project);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* buildSearch();
    QWidget* buildNewProject();
    void buildList();
    void listenToChanges();
    void showProjectMenu(const QPoint& pos);
    void fill(bool asResults);
    void updateCounts();
    void choose(int row);
    void commitRename(QListWidgetItem* item);
    void endRename();
    void search(const QString& text);
    QString rowText(const SidebarRow& row) const;

    const Services& m_services;
    Sidebar m_sidebar;
    QLineEdit* m_searchField = nullptr;
    QListWidget* m_list = nullptr;
    QLineEdit* m_newProject = nullptr;
    std::vector<SidebarRow> m_rows;
    Segment m_shownSegment = Segment::Today;
    const Project* m_shownProject = nullptr;
    bool m_showingResults = false;
    // Texts and selections set here are no choice or edit of the user's.
    bool m_quiet = false;
    Project* m_renaming = nullptr;
};

} // namespace lullet

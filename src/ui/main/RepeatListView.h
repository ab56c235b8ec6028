#pragma once

#include <QWidget>

class QLabel;
class QMenu;
class QTableView;

namespace lullet {

class RepeatListModel;
class Rule;
class RuleFormView;
struct CatalogueRow;
struct Services;

// The "Lullets" segment: the catalogue by group and the user's own rules, each with its switch
// and when it comes next. Rows open the rule form; custom rules can be deleted.
class RepeatListView final : public QWidget {
    Q_OBJECT
public:
    explicit RepeatListView(const Services& services, QWidget* parent = nullptr);

    RepeatListModel& model() { return *m_model; }
    QTableView* table() const { return m_table; }

    // The form for the row (a suggestion or a rule), or for a new rule without one. It is open
    // until answered; the returned form is owned by this view.
    RuleFormView* openForm(const CatalogueRow* row);
    // Asks, then deletes the custom rule of the row.
    void deleteRow(const CatalogueRow* row);
    // The menu of a row, as built for it.
    QMenu* buildMenu(const CatalogueRow* row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildHeader();
    void buildTable();
    void listenToChanges();
    void reload();
    void updateStats();
    void spanHeaders();
    void fitColumns();

    const Services& m_services;
    RepeatListModel* m_model;
    QTableView* m_table = nullptr;
    QLabel* m_stats = nullptr;
};

} // namespace lullet

#pragma once

#include <QMenu>

namespace lullet {

class Item;
struct Services;

// The context menu of a list's row: start or stop, finish, the postpone choices and the panel,
// move and duplicate to a project, delete. What needs no question is done here; starting,
// finishing and the postpone panel go back to the list, which may have to ask.
class ItemMenu final : public QMenu {
    Q_OBJECT
public:
    ItemMenu(const Services& services, Item* item, QWidget* parent = nullptr);

Q_SIGNALS:
    void startOrStopRequested(lullet::Item* item);
    void finishRequested(lullet::Item* item);
    void postponePanelRequested(lullet::Item* item);

private:
    void addPostponeChoices();
    void addMoveAndDuplicate();

    const Services& m_services;
    Item* m_item;
};

} // namespace lullet

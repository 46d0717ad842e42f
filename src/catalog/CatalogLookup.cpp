#include "CatalogLookup.h"

#include <vector>

const CatalogItem *CatalogLookup::node(const CatalogItem &root, const QString &nodeId)
{
    build(root);
    return m_byNode.value(nodeId.trimmed());
}

const CatalogItem *CatalogLookup::selector(const CatalogItem &root, const QString &selector)
{
    build(root);
    const QString key = selector.trimmed();
    if (const CatalogItem *group = m_bySelector.value(key.toLower()))
        return group;
    return m_byNode.value(key);
}

int CatalogLookup::nodeCount(const CatalogItem &root)
{
    build(root);
    return int(m_byNode.size());
}

void CatalogLookup::build(const CatalogItem &root)
{
    if (m_valid)
        return;
    m_byNode.clear();
    m_bySelector.clear();
    std::vector<const CatalogItem *> stack{&root};
    // Pre-order, so the first row of a node listed twice wins.
    while (!stack.empty()) {
        const CatalogItem *item = stack.back();
        stack.pop_back();
        if (item != &root) {
            if (item->group) {
                const QString selector = item->selector().toLower();
                if (!m_bySelector.contains(selector))
                    m_bySelector.insert(selector, item);
                const QString code = item->groupCode.trimmed().toLower();
                if (!code.isEmpty() && !m_bySelector.contains(code))
                    m_bySelector.insert(code, item);
            } else if (!m_byNode.contains(item->id)) {
                m_byNode.insert(item->id, item);
            }
        }
        for (auto it = item->children.rbegin(); it != item->children.rend(); ++it)
            stack.push_back(it->get());
    }
    m_valid = true;
}

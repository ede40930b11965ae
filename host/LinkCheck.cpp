/// Tarjan's strongly connected components with a stack of its own in place of calls.

#include "host/LinkCheck.h"

#include <algorithm>
#include <unordered_map>

namespace navigator {

namespace {

struct Node {
    std::size_t order = 0;
    std::size_t lowest = 0;
    bool isOpen = true;
    bool hasUnresolved = false;
    bool namesItself = false;
};

struct Visit {
    const ViewFile* file;
    std::vector<const ViewFile*> targets;
    std::size_t next = 0;
};

class LinkWalk {
public:
    explicit LinkWalk(const LinkGraph& graph) : m_graph(graph) {}

    void Run(const ViewFile* start) {
        Enter(start);
        while (!m_visits.empty()) {
            Visit& visit = m_visits.back();
            if (visit.next < visit.targets.size()) {
                Follow(visit.file, visit.targets[visit.next++]);
            } else {
                const ViewFile* const file = visit.file;
                m_visits.pop_back();
                Leave(file);
            }
        }
    }

private:
    void Enter(const ViewFile* file) {
        LinkTargets links = m_graph.expand(file);
        Node& node = m_nodes[file];
        node.order = node.lowest = m_nodes.size();
        node.hasUnresolved = links.hasUnresolved;
        node.namesItself = std::find(links.targets.begin(), links.targets.end(), file) != links.targets.end();
        m_open.push_back(file);
        m_visits.push_back({file, std::move(links.targets)});
    }

    /// Careful: Enter makes the stack of visits grow, so nothing of it may be used after.
    void Follow(const ViewFile* from, const ViewFile* to) {
        const auto known = m_nodes.find(to);
        if (known != m_nodes.end()) {
            if (known->second.isOpen) {
                Node& node = m_nodes[from];
                node.lowest = std::min(node.lowest, known->second.order);
            }
        } else if (!m_graph.isSettled(to)) {
            Enter(to);
        }
    }

    void Leave(const ViewFile* file) {
        const Node& node = m_nodes[file];
        if (!m_visits.empty()) {
            Node& parent = m_nodes[m_visits.back().file];
            parent.lowest = std::min(parent.lowest, node.lowest);
        }
        if (node.lowest != node.order) return;
        const bool isRing = m_open.back() != file || node.namesItself;
        for (bool isLast = false; !isLast;) {
            const ViewFile* const member = m_open.back();
            m_open.pop_back();
            isLast = member == file;
            Node& settled = m_nodes[member];
            settled.isOpen = false;
            m_graph.settle(member, isRing                  ? LinkState::Cycle
                                   : settled.hasUnresolved ? LinkState::Unresolved
                                                           : LinkState::Normal);
        }
    }

    const LinkGraph& m_graph;
    std::unordered_map<const ViewFile*, Node> m_nodes;
    std::vector<const ViewFile*> m_open;
    std::vector<Visit> m_visits;
};

}  // namespace

void gSettleLinks(const ViewFile* start, const LinkGraph& graph) {
    if (!graph.isSettled(start)) LinkWalk(graph).Run(start);
}

}  // namespace navigator

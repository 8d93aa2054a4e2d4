// Data of each open document. The host says when a document goes away; nothing is kept here so far.
#pragma once

#include <map>

#include "src/platform/host/HostPlugin.h"

struct WexDocumentData {};

class HostDocDataManager final : public HostDocManagerReactor {
  public:
    HostDocDataManager() { hostDocManager()->addReactor(this); }
    ~HostDocDataManager() { hostDocManager()->removeReactor(this); }
    HostDocDataManager(const HostDocDataManager&) = delete;
    HostDocDataManager& operator=(const HostDocDataManager&) = delete;

    void documentToBeDestroyed(HostDocument* document) override { m_data.erase(document); }

  private:
    std::map<HostDocument*, WexDocumentData> m_data;
};

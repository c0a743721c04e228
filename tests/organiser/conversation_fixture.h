// Organiser and model server on one line, with a bad cable between them when a test asks for it.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "model_files.h"
#include "model_server.h"
#include "model_services.h"
#include "organiser/conversation.h"
#include "organiser/fault_injector.h"
#include "organiser/organiser_link.h"
#include "organiser/progress.h"

namespace velmora::test {

class ConversationFixture : public testing::Test {
  protected:
    ConversationFixture() {
        server.serve("FTRAN", ftran);
        server.serve("FILE", file);
    }

    /// From here on the cable has faults.
    void damageCable(const FaultOptions& options) {
        cable = std::make_unique<FaultInjector>(line, options);
        faultyLink = std::make_unique<OrganiserLink>(*cable);
    }
    OrganiserLink& link() { return faultyLink ? *faultyLink : cleanLink; }

    /// The failure that an action ends with.
    template <typename Action>
    LinkFailure failureOf(Action action) {
        try {
            action();
        } catch (const LinkFailure& failure) {
            return failure;
        }
        ADD_FAILURE() << "it did not fail";
        return LinkFailure::noLink("");
    }

    FakeLine line;
    ModelFolder folder;
    ModelFtran ftran{folder};
    ModelFile file{folder};
    ModelServer server{line};
    Progress progress;
    std::unique_ptr<FaultInjector> cable;
    OrganiserLink cleanLink{line};
    std::unique_ptr<OrganiserLink> faultyLink;
};

}  // namespace velmora::test

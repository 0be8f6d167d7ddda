// Filing elements, finding them and taking them out again.

#include "support.h"

#include "lbx/gnl/core/element_registry.h"

namespace {

using namespace gnl_test;

using Registry = in_folder;

/// An element of no known kind that counts its destructions.
class counted : public GNL_ELEMENT
{
public:
    counted(GNL_GENERATOR * parent, std::string const & name, int & destroyed)
        : GNL_ELEMENT(parent, name)
        , m_destroyed(destroyed)
    {
    }
    ~counted() override { ++m_destroyed; }

private:
    int & m_destroyed;
};

TEST_F(Registry, NamesOrderByFoldedBytesAndTheEndFirst)
{
    std::map<std::string, int, LESS_C_STRING> map{{"aB", 0}, {"a_", 0}, {"a[", 0},    {"aA", 0},
                                                  {"a", 0},  {"", 0},   {"a\xe4", 0}, {"AB", 0}};
    texts order;
    for (auto const & entry : map)
        order.push_back(entry.first);
    EXPECT_EQ(order, (texts{"", "a", "a[", "a_", "aA", "aB", "a\xe4"}));
}

TEST_F(Registry, AnElementIsFoundUnderItsKeyWhateverItsKind)
{
    design top(nullptr);
    auto & port = top.input("clk");
    auto & size = top.integer("SIZE", 1);
    GNL_PARAMETER_INTEGER_ARRAY taps(&top, "TAPS", 0);
    auto & child = top.child("cell", "u1");
    int destroyed = 0;
    counted plain(&top, "Plain;", destroyed);
    EXPECT_EQ(top.find_port_object("port;CLK"), &port);
    EXPECT_EQ(top.find_port_object("PAR;size"), &size);
    EXPECT_EQ(top.find_port_object("PAR_ARY;TAPS"), &taps);
    EXPECT_EQ(top.find_port_object("GNRTR;cell;u1"), &child);
    EXPECT_EQ(top.find_port_object("plain;"), &plain);
    for (auto const * missing : {"clk", "PORT;clk2", "PORT;", "PAR;TAPS", "GNRTR;cell;", "GNRTR;cell;u1;0", "LGC;", ""})
        EXPECT_EQ(top.find_port_object(missing), nullptr) << missing;
}

TEST_F(Registry, ExpressionsAndRangesAreFoundUnderTheirKeys)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a", 4);
    auto & b = top.input("b", 4);
    top.dump = false;
    top.run([&](design &) {
        auto & both = a & b;
        auto & deep = !(both ^ a);
        auto & part = a.range(2, 1);
        EXPECT_EQ(top.find_port_object("LGC;AND;PORT;a;GNRTR;top;;PORT;b;GNRTR;top;"), &both);
        EXPECT_EQ(top.find_port_object(deep.generate_key()), &deep);
        EXPECT_EQ(top.find_port_object("rng;PORT;A;GNRTR;top;;GNRTR;top;;2;1"), &part);
        EXPECT_EQ(top.find_port_object("LGC;AND;PORT;a;GNRTR;top;;PORT;b;GNRTR;top"), nullptr);
        EXPECT_EQ(top.find_port_object("RNG;PORT;a;GNRTR;top;;GNRTR;top;;2;10"), nullptr);
        EXPECT_EQ(top.find_port_object("LGC;OR;PORT;a;GNRTR;top;;PORT;b;GNRTR;top;"), nullptr);
    });
}

TEST_F(Registry, AKeyOfManySharedExpressionsIsNotBuiltToFindOne)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a");
    auto & b = top.input("b");
    top.dump = false;
    top.run([&](design &) {
        GNL_PORT * shared = &(a & b);
        for (int i = 0; i < 60; ++i) // the key text of the last one would fill 2 to the power of 60 bytes
            shared = &(*shared ^ (*shared & b));
        auto & last = a | b;
        EXPECT_EQ(top.find_port_object("LGC;OR;PORT;a;GNRTR;top;;PORT;b;GNRTR;top;"), &last);
    });
}

TEST_F(Registry, OptionsAreFoundAlthoughTheirObjectsAreMadeLate)
{
    design top(nullptr);
    auto * file = top.get_parameter_object("lbx_file");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->get_name(), "LBX_FILE");
    EXPECT_EQ(file->get_parent(), &top);
    EXPECT_EQ(top.find_port_object("PAR;LBX_FILE"), file);
    EXPECT_EQ(top.parameter_integer("LBX_MAX_ERROR_MESSAGES").get_value(), 50);
    EXPECT_EQ(top.get_parameter_object("LBX_NONE"), nullptr);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Registry, AllParametersInclude18OptionsAndDeclaredOnesDoNot)
{
    design top(nullptr);
    top.integer("SIZE", 1);
    top.string("mode", "A|B", 0);
    top.get_parameter_object("LBX_FILE");
    texts declared;
    for (auto * parameter : top.registry().declared_parameters())
        declared.push_back(parameter->get_name());
    EXPECT_EQ(declared, (texts{"mode", "SIZE"}));
    EXPECT_EQ(top.registry().parameters().size(), 20U);
    EXPECT_EQ(top.registry().declared_parameters().size(), 2U);
}

TEST_F(Registry, AnOptionCanBeMadeInsideTheBody)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.dump = false;
    top.run([&](design &) { EXPECT_NE(top.get_parameter_object("LBX_EDA_PLANB"), nullptr); });
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Registry, AParameterOfTheAuthorStandsInFrontOfAnOption)
{
    design top(nullptr);
    auto & own = top.string("LBX_EDA_PLANB", "ON|OFF", 0);
    EXPECT_EQ(top.get_parameter_object("LBX_EDA_PLANB"), &own);
    EXPECT_EQ(top.registry().parameters().size(), 18U);
    EXPECT_EQ(top.get_parameter_object("LBX_EDA_PLANB"), &own);
}

TEST_F(Registry, ALaterElementTakesTheKeyAndBothAreDeletedOnce)
{
    int destroyed = 0;
    {
        design top(nullptr);
        new counted(&top, "one", destroyed);
        auto * second = new counted(&top, "ONE", destroyed);
        EXPECT_EQ(top.find_port_object("one"), second);
    }
    EXPECT_EQ(destroyed, 2);
}

TEST_F(Registry, TheEarlierPortOfANameIsOutOfAllWalks)
{
    design top(nullptr);
    top.input("data");
    top.get_port_object("data");
    auto & second = top.input("DATA");
    ASSERT_EQ(top.registry().ports().size(), 1U);
    EXPECT_EQ(&*top.registry().ports().begin(), &second);
    EXPECT_EQ(top.get_port_object("data"), &second);
}

TEST_F(Registry, DestroyingAHomonymTakesNothingElseAway)
{
    design top(nullptr);
    auto first = std::make_unique<GNL_PORT_INPUT>(&top, "data");
    GNL_PORT_INPUT second(&top, "data");
    EXPECT_EQ(top.get_port_object("data"), &second);
    first.reset();
    EXPECT_EQ(top.get_port_object("data"), &second);
}

TEST_F(Registry, DestroyingTheHolderLeavesTheKeyFree)
{
    design top(nullptr);
    GNL_PORT_INPUT first(&top, "data");
    auto second = std::make_unique<GNL_PORT_INPUT>(&top, "data");
    EXPECT_EQ(top.get_port_object("data"), second.get());
    second.reset();
    EXPECT_EQ(top.get_port_object("data"), nullptr); // the earlier entry was overwritten
}

TEST_F(Registry, ACopyIsInNoRegistryAndTakesNothingAway)
{
    design top(nullptr);
    GNL_PORT_INPUT original(&top, "data");
    {
        GNL_PORT_INPUT copy(original);
        EXPECT_EQ(copy.get_parent(), &top);
        EXPECT_EQ(copy.get_name(), "data");
        EXPECT_EQ(top.get_port_object("data"), &original);
    }
    EXPECT_EQ(top.get_port_object("data"), &original);
}

TEST_F(Registry, ARenamedElementIsFiledAnew)
{
    design top(nullptr);
    auto & first = top.input("first");
    auto & other = top.input("other");
    EXPECT_EQ(top.get_port_object("first"), &first);
    first.change_name("Other");
    EXPECT_EQ(top.get_port_object("first"), nullptr);
    EXPECT_EQ(top.get_port_object("other"), &first);
    EXPECT_EQ(other.get_name(), "other");
    first.change_name(first.get_name());
    EXPECT_EQ(top.get_port_object("Other"), &first);
}

TEST_F(Registry, ACallersKeyReplacesTheOwnOne)
{
    design top(nullptr);
    auto & port = top.input("data");
    top.insert(&port, "PORT;alias");
    EXPECT_EQ(top.find_port_object("PORT;ALIAS"), &port);
    EXPECT_EQ(top.find_port_object("PORT;data"), nullptr);
    EXPECT_EQ(top.get_port_object("alias"), nullptr); // that is not its name
    auto & other = top.input("b");
    ASSERT_EQ(top.registry().ports().size(), 2U);
    EXPECT_EQ(&*top.registry().ports().begin(), &port); // "alias" comes before "b"
    top.insert(&other, "PORT;alias");
    EXPECT_EQ(top.find_port_object("PORT;alias"), &other);
    EXPECT_EQ(top.registry().ports().size(), 1U);
    top.remove(&other, "PORT;alias", false);
    EXPECT_EQ(top.find_port_object("PORT;alias"), nullptr);
    delete &other;
}

TEST_F(Registry, ACallersKeyThatIsTheOwnOneChangesNothing)
{
    design top(nullptr);
    auto & port = top.input("data");
    top.insert(&port, "port;DATA");
    EXPECT_EQ(top.get_port_object("data"), &port);
    EXPECT_EQ(top.registry().ports().size(), 1U);
}

TEST_F(Registry, WhatIsInsertedBelongsToTheGenerator)
{
    int destroyed = 0;
    {
        design top(nullptr);
        auto * element = new counted(nullptr, "guest", destroyed);
        top.insert(element, "");
        EXPECT_EQ(top.find_port_object("guest"), element);
        EXPECT_EQ(element->get_parent(), &top);
        top.insert(nullptr, "");
        top.remove(nullptr, "", true);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST_F(Registry, AnElementMovesToTheGeneratorItIsInsertedInto)
{
    int destroyed = 0;
    {
        design one(nullptr, "one");
        design two(nullptr, "two");
        auto * element = new counted(&one, "guest", destroyed);
        EXPECT_EQ(one.find_port_object("guest"), element);
        two.insert(element, "");
        EXPECT_EQ(one.find_port_object("guest"), nullptr);
        EXPECT_EQ(two.find_port_object("guest"), element);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST_F(Registry, ARemovedElementIsItsMakersAgain)
{
    int destroyed = 0;
    {
        design top(nullptr);
        auto element = std::make_unique<counted>(&top, "guest", destroyed);
        top.remove(element.get(), "", false);
        EXPECT_EQ(top.find_port_object("guest"), nullptr);
    }
    EXPECT_EQ(destroyed, 1);
}

TEST_F(Registry, AGeneratorThatIsItsOwnParentIsReportedAndHasNone)
{
    alignas(design) unsigned char place[sizeof(design)];
    auto * const self = reinterpret_cast<design *>(place);
    new (place) design(self, "loop");
    EXPECT_EQ(self->get_parent(), nullptr);
    EXPECT_EQ(
        self->messages(),
        (texts{error("Parent of generator object loop is itself.", "A generator object is marked as its own parent.",
                     "If the generator is the top level object, use NULL as parent, or else use the immediate "
                     "top level design as parent.")}));
    self->~design();
}

TEST_F(Registry, AParameterMadeInTheBodyIsReportedAndNotFiled)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.dump = false;
    std::unique_ptr<GNL_PARAMETER_INTEGER> late;
    top.run([&](design & self) {
        late = std::make_unique<GNL_PARAMETER_INTEGER>(&self, "LATE", 1);
        EXPECT_EQ(self.get_parameter_object("LATE"), nullptr);
    });
    EXPECT_EQ(top.messages(),
              (texts{error("Parameter top|LATE is being created inside rtl_body of top",
                           "In a lumen box, parameter objects of a generator cannot be created in heap (using new) "
                           "inside the rtl body.",
                           "The parameter objects of a generator should be declared as member objects of the generator "
                           "class.")}));
}

TEST_F(Registry, DestructionInTheBodyStaysHarmlessWhenErrorsAreThrown)
{
    design top(nullptr, "top", "LBX_FILE=top.v,LBX_THROW_EXCEPTION_ON_ERROR=ON");
    top.dump = false;
    top.run([&](design & self) { delete &self.wire("scratch"); });
    EXPECT_EQ(top.get_port_object("scratch"), nullptr);
}

TEST_F(Registry, AGeneratorEndsQuietlyAfterABodyThatWasLeftByAnException)
{
    design top(nullptr, "top", "LBX_FILE=top.v,LBX_THROW_EXCEPTION_ON_ERROR=ON");
    int destroyed = 0;
    {
        auto sub = std::make_unique<design>(nullptr, "sub", "LBX_FILE=sub.v,LBX_THROW_EXCEPTION_ON_ERROR=ON");
        sub->body = [&](design & self) {
            new counted(&self, "held", destroyed);
            self.generator_error("broken", nullptr, nullptr);
        };
        try {
            sub->run();
            ADD_FAILURE() << "the error was to be thrown";
        } catch (char * text) {
            EXPECT_STREQ(text, "GNL_INTERNAL_ERROR: broken");
            delete[] text;
        }
    }
    EXPECT_EQ(destroyed, 1);
}

TEST_F(Registry, ParametersThatOutliveTheirGeneratorLoseTheirParent)
{
    std::unique_ptr<GNL_PARAMETER_INTEGER> size;
    {
        design top(nullptr);
        size = std::make_unique<GNL_PARAMETER_INTEGER>(&top, "SIZE", 3);
    }
    EXPECT_EQ(size->get_parent(), nullptr);
    EXPECT_EQ(size->get_value(), 3);
}

TEST_F(Registry, WhatIsOnTheDeleteListAndRegisteredIsDeletedOnce)
{
    int destroyed = 0;
    {
        design top(nullptr);
        top.add_to_gnl_delete_list(new counted(&top, "both", destroyed));
        top.add_to_gnl_delete_list(nullptr);
        EXPECT_NE(top.find_port_object("both"), nullptr);
    }
    EXPECT_EQ(destroyed, 1);
}

// ---- Generators without an instance name

TEST_F(Registry, UnnamedGeneratorsOfOneClassAreNotLost)
{
    design top(nullptr);
    auto & first = *new design(&top, "cell");
    auto & second = *new design(&top, "cell");
    auto & third = *new design(&top, "CELL");
    EXPECT_EQ(top.find_port_object("GNRTR;cell;"), &first);
    EXPECT_EQ(top.registry().generators().size(), 1U);
    first.set_instance_name("u1");
    EXPECT_EQ(top.find_port_object("GNRTR;cell;"), &second);
    second.set_instance_name("u2");
    EXPECT_EQ(top.find_port_object("GNRTR;cell;"), &third);
    third.set_instance_name("u3");
    EXPECT_EQ(top.find_port_object("GNRTR;cell;"), nullptr);
    EXPECT_EQ(top.registry().generators().size(), 3U);
}

TEST_F(Registry, AWaitingGeneratorThatIsNamedIsFiledUnderItsName)
{
    design top(nullptr);
    auto & first = *new design(&top, "cell");
    auto & second = *new design(&top, "cell");
    EXPECT_EQ(top.find_port_object("GNRTR;cell;"), &first);
    second.set_instance_name("u2");
    EXPECT_EQ(top.find_port_object("GNRTR;cell;u2"), &second);
    EXPECT_EQ(top.find_port_object("GNRTR;cell;"), &first);
}

TEST_F(Registry, TheNextWaitingGeneratorFollowsADestroyedOne)
{
    design top(nullptr);
    auto first = std::make_unique<design>(&top, "cell");
    auto second = std::make_unique<design>(&top, "cell");
    auto & third = *new design(&top, "cell");
    EXPECT_EQ(top.find_port_object("GNRTR;cell;"), first.get());
    second.reset();
    first.reset();
    EXPECT_EQ(top.find_port_object("GNRTR;cell;"), &third);
}

TEST_F(Registry, AutomaticNamesGoByKeyAndThenByDeclaration)
{
    design top(nullptr);
    auto & b1 = *new design(&top, "b");
    auto & a1 = *new design(&top, "a");
    auto & b2 = *new design(&top, "b");
    auto & a2 = *new design(&top, "a");
    top.get_port_object("anything");
    top.child("b", "own");
    top.set_subdesign_auto_generated_instance_names();
    EXPECT_EQ(a1.get_instance_name(), "sd1");
    EXPECT_EQ(a2.get_instance_name(), "sd2");
    EXPECT_EQ(b1.get_instance_name(), "sd3");
    EXPECT_EQ(b2.get_instance_name(), "sd4");
    EXPECT_EQ(top.registry().generators().size(), 5U);
}

TEST_F(Registry, ManyUnnamedGeneratorsAreNamedInOneGo)
{
    design top(nullptr);
    for (int i = 0; i < 20000; ++i)
        new design(&top, "cell");
    for (int i = 0; i < 1000; ++i)
        top.get_port_object("anything");
    top.set_subdesign_auto_generated_instance_names();
    EXPECT_EQ(top.registry().generators().size(), 20000U);
    EXPECT_NE(top.find_port_object("GNRTR;cell;sd20000"), nullptr);
}

} // namespace

// What all parameters share: keys, flags, the order in which values are given, exposing and expressions.

#include "parameter_errors.h"

namespace {

using namespace gnl_test;

class Parameter : public in_folder
{
protected:
    design top{nullptr};
};

TEST_F(Parameter, KeyIsThePrefixAndTheName)
{
    EXPECT_EQ(top.integer("Size").generate_key(), "PAR;Size");
    EXPECT_EQ(GNL_PARAMETER::generate_key_base("x"), "PAR;x");
}

TEST_F(Parameter, IsFoundUnderItsNameInAnyCase)
{
    auto & size = top.integer("Size");
    EXPECT_EQ(top.get_parameter_object("SIZE"), &size);
    EXPECT_EQ(size.get_name(), "Size");
}

TEST_F(Parameter, ExactlyOneKindOfInheritanceIsSet)
{
    auto & size = top.integer("SIZE");
    auto const kinds = [&] {
        return std::vector<bool>{size.is_inherit_only(), size.is_inherit_never(), size.is_inherit_allowed()};
    };
    EXPECT_EQ(kinds(), (std::vector<bool>{false, true, false}));
    size.set_as_inherit_only();
    EXPECT_EQ(kinds(), (std::vector<bool>{true, false, false}));
    size.set_as_inherit_allowed();
    EXPECT_EQ(kinds(), (std::vector<bool>{false, false, true}));
    size.set_as_inherit_only();
    size.set_as_inherit_never();
    EXPECT_EQ(kinds(), (std::vector<bool>{false, true, false}));
}

TEST_F(Parameter, InheritOnlyLeavesTheDeclarationForGood)
{
    auto & size = top.integer("SIZE");
    size.set_as_inherit_only();
    size.set_as_inherit_allowed();
    EXPECT_FALSE(size.is_included_in_declaration());
    size.set_as_inherit_never();
    EXPECT_FALSE(size.is_included_in_declaration());
    size.set_as_included_in_declaration();
    EXPECT_TRUE(size.is_included_in_declaration());
}

TEST_F(Parameter, TrueHiddenIsHiddenToo)
{
    auto & size = top.integer("SIZE");
    size.set_as_true_hidden_parameter();
    EXPECT_TRUE(size.is_hidden_parameter());
    EXPECT_TRUE(size.is_true_hidden_parameter());
}

TEST_F(Parameter, AssignedThroughItsBaseTakesTheFlagsAndNoValue)
{
    GNL_PARAMETER_INTEGER a(&top, "A", 3);
    GNL_PARAMETER_INTEGER b(&top, "B", 4);
    b.set_as_hidden_parameter();
    b.set_as_inherit_allowed();
    b.set_as_not_included_in_declaration();
    b = 7;
    static_cast<GNL_PARAMETER &>(a) = b;
    EXPECT_TRUE(a.is_hidden_parameter());
    EXPECT_TRUE(a.is_inherit_allowed());
    EXPECT_FALSE(a.is_included_in_declaration());
    EXPECT_TRUE(a.value_changed());
    EXPECT_EQ(a.get_value(), 3);
    EXPECT_EQ(a.get_name(), "A");
    EXPECT_EQ(top.get_parameter_object("A"), &a);
    EXPECT_EQ(top.get_parameter_object("B"), &b);
}

TEST_F(Parameter, CopyHasTheFlagsAndIsInNoRegistry)
{
    auto & size = top.integer("SIZE", 7);
    size = 9;
    size.set_as_inherit_allowed();
    size.set_as_lpm_hint();
    GNL_PARAMETER_INTEGER copy(size);
    EXPECT_EQ(copy.get_name(), "SIZE");
    EXPECT_EQ(copy.get_parent(), &top);
    EXPECT_EQ(copy.get_value(), 9);
    EXPECT_TRUE(copy.is_inherit_allowed());
    EXPECT_TRUE(copy.is_lpm_hint());
    EXPECT_TRUE(copy.value_changed());
    EXPECT_EQ(top.get_parameter_object("SIZE"), &size);
}

TEST_F(Parameter, CopyLeavesTheOriginalInItsRegistry)
{
    auto & size = top.integer("SIZE", 7);
    {
        GNL_PARAMETER_INTEGER copy(size);
    }
    EXPECT_EQ(top.get_parameter_object("SIZE"), &size);
}

TEST_F(Parameter, UseIsFoundOnlyWhenAValueWasGiven)
{
    auto & size = top.integer("SIZE", 7);
    EXPECT_FALSE(size.is_used());
    size.get_value();
    EXPECT_FALSE(size.is_used());
    size = 7;
    EXPECT_TRUE(size.is_used());
}

TEST_F(Parameter, UseReadsTheTextFirst)
{
    design with_text(nullptr, "top", "SIZE=3");
    auto & size = with_text.integer("SIZE", 7);
    EXPECT_FALSE(size.value_changed());
    EXPECT_TRUE(size.is_used());
    EXPECT_TRUE(size.value_changed());
}

TEST_F(Parameter, AssignmentBeforeTheFirstConnectionIsFine)
{
    auto & size = top.integer("SIZE", 7);
    auto & d = top.input("d", 4);
    size = 5;
    EXPECT_EQ(top.messages(), texts{});
    EXPECT_EQ(d.get_width(), 4);
    size = 6;
    EXPECT_EQ(top.messages(), texts{assigned_late("top|SIZE", "top")});
    EXPECT_EQ(size.get_value(), 6);
}

TEST_F(Parameter, InheritOnlyIsAssignedBeforeTheBody)
{
    auto & size = top.integer("SIZE", 7);
    size.set_as_inherit_only();
    size = 3;
    EXPECT_EQ(size.get_value(), 3);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Parameter, InheritOnlyOfASubdesignIsNotAssignedInTheBodyOfTheTop)
{
    top.dump = false;
    auto & mode = top.child("sub", "u").string("MODE", "A|B", 0);
    mode.set_as_inherit_only();
    top.run([&](design &) { mode = "B"; });
    EXPECT_EQ(top.messages(), texts{inherit_only_in_body("MODE", "B")});
    EXPECT_FALSE(mode.value_changed());
}

TEST_F(Parameter, ExposedIsReadThroughItsInternalValueAlone)
{
    auto & size = top.integer("SIZE", 7);
    auto & mode = top.string("MODE", "A|B", 1);
    size.set_as_parameterized();
    mode.set_as_parameterized();
    EXPECT_EQ(size.get_value(), -1);
    EXPECT_EQ(mode.get_value(), "UNUSED");
    EXPECT_EQ(top.messages(), (texts{exposed_read("SIZE"), exposed_read("MODE")}));
    EXPECT_EQ(size.get_internal_value(true), 7);
    EXPECT_EQ(mode.get_internal_value(true), "B");
    EXPECT_EQ(top.messages().size(), 2u);
}

TEST_F(Parameter, HandleIsTheNameAndMarksTheUse)
{
    auto & size = top.integer("Size", 7);
    EXPECT_EQ(size.get_parameter().get_expression(), "Size");
    EXPECT_TRUE(size.is_used());
    EXPECT_FALSE(size.value_changed());
}

TEST_F(Parameter, HandleOfAParentlessParameterStays)
{
    GNL_PARAMETER_EXPR * handle = nullptr;
    {
        GNL_PARAMETER_INTEGER size(nullptr, "SIZE", 7);
        handle = &(size.get_parameter() + 1);
    }
    EXPECT_EQ(handle->get_expression(), "(SIZE + 1)");
}

TEST_F(Parameter, AssignedExpressionIsTheHandleItself)
{
    auto & size = top.integer("SIZE", 7);
    auto & depth = top.integer("DEPTH", 1);
    auto & handle = size.get_parameter();
    depth = handle;
    EXPECT_EQ(depth.get_expr(), &handle);
    EXPECT_TRUE(depth.uses_expr_assignment());
    EXPECT_TRUE(depth.value_changed());
    handle * 2;
    EXPECT_EQ(depth.get_expr_assignment(), "(SIZE * 2)");
    EXPECT_EQ(depth.get_value(), 1);
}

TEST_F(Parameter, ExpressionOutlivesItsMakersHandle)
{
    auto & depth = top.integer("DEPTH", 1);
    {
        GNL_PARAMETER_EXPR own(GNL_VERILOG);
        own.add_to_expression("SIZE");
        depth = own - 1;
    }
    EXPECT_EQ(depth.get_expr_assignment(), "(SIZE - 1)");
}

TEST_F(Parameter, ExpressionCannotBeReplacedByAnother)
{
    auto & mode = top.string("MODE", "A|B", 0);
    auto & kind = top.string("KIND", "A|B", 0);
    kind = mode.get_parameter();
    kind = mode.get_parameter();
    EXPECT_EQ(top.messages(), texts{expression_reassigned("KIND", "MODE", "MODE")});
    EXPECT_EQ(kind.get_value(), "A");
}

TEST_F(Parameter, WithoutExpressionThereIsNoText)
{
    auto & size = top.integer("SIZE", 7);
    EXPECT_FALSE(size.uses_expr_assignment());
    EXPECT_EQ(size.get_expr_assignment(), "");
    EXPECT_EQ(size.get_expr(), nullptr);
}

TEST(ParameterExpression, EachOperationPutsAllBeforeItInParentheses)
{
    GNL_PARAMETER_EXPR expression(GNL_VERILOG);
    EXPECT_EQ(expression.get_expression(), "");
    expression.add_to_expression("W");
    EXPECT_EQ(&(expression + 1), &expression);
    EXPECT_EQ(expression.get_expression(), "(W + 1)");
    ((expression * 2) - 3) / 4;
    EXPECT_EQ(expression.get_expression(), "((((W + 1) * 2) - 3) / 4)");
    expression + -7;
    EXPECT_EQ(expression.get_expression(), "(((((W + 1) * 2) - 3) / 4) + -7)");
}

TEST(ParameterExpression, RemainderFollowsTheLanguage)
{
    std::string const expected[] = {"(N MOD 3)", "(N % 3)", "(N MOD 3)", "(N % 3)"};
    for (int language = GNL_QHDL; language <= GNL_TCL; ++language) {
        GNL_PARAMETER_EXPR expression(language);
        expression.add_to_expression("N");
        EXPECT_EQ((expression % 3).get_expression(), expected[language]) << language;
        EXPECT_EQ(expression.get_language(), language);
    }
}

TEST(ParameterExpression, CopyIsItsOwn)
{
    GNL_PARAMETER_EXPR expression(GNL_VERILOG);
    expression.add_to_expression("N");
    GNL_PARAMETER_EXPR copy(expression);
    copy + 1;
    EXPECT_EQ(expression.get_expression(), "N");
    expression = copy;
    copy + 2;
    EXPECT_EQ(expression.get_expression(), "(N + 1)");
}

TEST(ParameterExpression, LongSumsAreCheap)
{
    GNL_PARAMETER_EXPR expression(GNL_VERILOG);
    expression.add_to_expression("N");
    int const terms = 100000;
    for (int i = 0; i < terms; ++i)
        expression + 1;
    auto const & text = expression.get_expression();
    EXPECT_EQ(text.size(), std::size_t(1 + terms * 6));
    EXPECT_EQ(text.substr(terms - 1, 12), "(N + 1) + 1)");
}

TEST_F(Parameter, HandleTakesTheLanguageOfItsMaking)
{
    auto & size = top.integer("SIZE", 7);
    design::set_gen_language(GNL_VERILOG);
    EXPECT_EQ((size.get_parameter() % 2).get_expression(), "(SIZE % 2)");
    design::set_gen_language(GNL_VHDL);
    EXPECT_EQ((size.get_parameter() % 2).get_expression(), "(SIZE MOD 2)");
}

TEST_F(Parameter, CreatedInTheBodyIsReportedAndStillWorks)
{
    top.dump = false;
    std::unique_ptr<GNL_PARAMETER_INTEGER> late;
    top.run([&](design & self) {
        late = std::make_unique<GNL_PARAMETER_INTEGER>(&self, "LATE", 4);
        EXPECT_EQ(self.get_parameter_object("LATE"), nullptr);
    });
    EXPECT_EQ(late->get_value(), 4);
    EXPECT_EQ(top.messages(),
              texts{error("Parameter top|LATE is being created inside rtl_body of top",
                          "In a lumen box, parameter objects of a generator cannot be created in heap (using new) "
                          "inside the rtl body.",
                          "The parameter objects of a generator should be declared as member objects of the generator "
                          "class.")});
}

} // namespace

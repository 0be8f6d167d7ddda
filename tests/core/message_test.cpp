#include "support.h"

#include "lbx/gnl/core/report_messages.h"

namespace {

using gnl_test::design;
using gnl_test::error;
using gnl_test::texts;

class Messages : public gnl_test::in_folder
{
};

/// A post that tells when it is deleted.
class counted_post : public GNL_MSG_E
{
public:
    explicit counted_post(int & deleted)
        : m_deleted(deleted)
    {
    }
    ~counted_post() override { ++m_deleted; }

private:
    int & m_deleted;
};

class counted_item : public GNL_COLLECTABLE_OBJECT
{
public:
    explicit counted_item(int & deleted)
        : m_deleted(deleted)
    {
    }
    ~counted_item() override { ++m_deleted; }

private:
    int & m_deleted;
};

// Stored messages

TEST_F(Messages, StoredMessagesTellTypeTextAndHelp)
{
    EXPECT_STREQ(GNL_MSG(1, "t").get_msg_type(), "ERROR");
    EXPECT_STREQ(GNL_MSG(2, "t").get_msg_type(), "WARNING");
    EXPECT_STREQ(GNL_MSG(3, "t").get_msg_type(), "INFO");
    EXPECT_STREQ(GNL_MSG(4, "t").get_msg_type(), "DEBUG");
    EXPECT_STREQ(GNL_MSG(0, "t").get_msg_type(), "");
    EXPECT_STREQ(GNL_MSG(5, "t").get_msg_type(), "");
    EXPECT_STREQ(GNL_MSG(1, "text", "help").get_msg_text(), "text");
    EXPECT_STREQ(GNL_MSG(1, "text", "help").get_msg_help_id(), "help");
    EXPECT_EQ(GNL_MSG(1, "text").get_msg_help_id(), nullptr);
    EXPECT_STREQ(GNL_MSG(1, nullptr).get_msg_text(), "");
}

TEST_F(Messages, FactoriesSetTheTypeAndLeaveTheHelpOut)
{
    std::unique_ptr<GNL_MSG> const made[]{std::unique_ptr<GNL_MSG>(GNL_ERROR_MSG::create_error_msg("e")),
                                          std::unique_ptr<GNL_MSG>(GNL_WARNING_MSG::create_warning_msg("w")),
                                          std::unique_ptr<GNL_MSG>(GNL_INFO_MSG::create_info_msg("i"))};
    EXPECT_STREQ(made[0]->get_msg_type(), "ERROR");
    EXPECT_STREQ(made[1]->get_msg_type(), "WARNING");
    EXPECT_STREQ(made[2]->get_msg_type(), "INFO");
    EXPECT_STREQ(made[1]->get_msg_text(), "w");
    EXPECT_EQ(made[0]->get_msg_help_id(), nullptr);
}

// The list

TEST_F(Messages, ListStartsEmptyAndGrows)
{
    int deleted = 0;
    {
        GNL_OBJ_LIST list(1);
        list.set_growth_size(2);
        EXPECT_EQ(list.get_count(), 0);
        std::vector<GNL_COLLECTABLE_OBJECT *> items;
        for (int i = 0; i < 200; ++i) {
            items.push_back(new counted_item(deleted));
            list.add(items.back());
        }
        EXPECT_EQ(list.get_count(), 200);
        EXPECT_EQ(list[0], items[0]);
        EXPECT_EQ(list[199], items[199]);
        EXPECT_EQ(deleted, 0);
    }
    EXPECT_EQ(deleted, 200);
}

TEST_F(Messages, ListOfNoEntriesTakesSomeAllTheSame)
{
    for (int initial : {0, -3}) {
        int deleted = 0;
        GNL_OBJ_LIST list(initial);
        list.set_growth_size(0);
        list.add(new counted_item(deleted));
        EXPECT_EQ(list.get_count(), 1);
    }
}

TEST_F(Messages, SettingAnEntryDeletesTheOldOneAndIgnoresAnIndexBeyond)
{
    int first = 0;
    int second = 0;
    GNL_OBJ_LIST list;
    list.add(new counted_item(first));
    auto * const replacement = new counted_item(second);
    list.set_at(replacement, 1);
    list.set_at(replacement, -1);
    EXPECT_EQ(first, 0);
    list.set_at(replacement, 0);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(list[0], replacement);
    list.set_at(replacement, 0);
    EXPECT_EQ(second, 0);
}

TEST_F(Messages, CursorStandsOnNothingBeforeTheFirstAndBehindTheLast)
{
    int deleted = 0;
    GNL_OBJ_LIST list;
    EXPECT_EQ(list.get_cur_item(), nullptr);
    EXPECT_FALSE(list.move_to_next_item());
    auto * const item = new counted_item(deleted);
    list.add(item);
    list.reset_list_iterator();
    EXPECT_EQ(list.get_cur_item(), nullptr);
    EXPECT_TRUE(list.move_to_next_item());
    EXPECT_EQ(list.get_cur_item(), item);
    EXPECT_FALSE(list.move_to_next_item());
    EXPECT_FALSE(list.move_to_next_item());
    EXPECT_EQ(list.get_cur_item(), nullptr);
}

// Posts

TEST_F(Messages, PostsTellTheirType)
{
    GNL_MSG_E const e;
    GNL_MSG_I const i;
    GNL_MSG_W const w;
    GNL_MSG_D const d;
    EXPECT_STREQ(e.get_type_string(), "Error");
    EXPECT_STREQ(i.get_type_string(), "Info");
    EXPECT_STREQ(w.get_type_string(), "Warning");
    EXPECT_STREQ(d.get_type_string(), "Debug");
    EXPECT_EQ(e.get_type(), 0);
    EXPECT_EQ(i.get_type(), 1);
    EXPECT_EQ(w.get_type(), 2);
    EXPECT_EQ(d.get_type(), 3);
    EXPECT_TRUE(e.is_error_msg());
    EXPECT_TRUE(i.is_info_msg());
    EXPECT_TRUE(w.is_warning_msg());
    EXPECT_TRUE(d.is_debug_msg());
    EXPECT_FALSE(e.is_info_msg() || e.is_warning_msg() || e.is_debug_msg());
}

struct post_texts
{
    std::string text, format, arguments, help;
    bool operator==(post_texts const &) const = default;
};

post_texts texts_of(GNL_MSG_POST * post)
{
    std::unique_ptr<GNL_MSG_POST> const owned(post);
    return {post->get_msg_text(), post->get_format(), post->get_arguments(), post->get_msg_help_id()};
}

TEST_F(Messages, PostsAreFilledFromFormatAndArguments)
{
    EXPECT_EQ(texts_of(gnl_msg_interface->create_gnl_msg_e("%2!s! has %1!d! bits/WIDTH", 17, 8, "data")),
              (post_texts{"data has 8 bits", "%2!s! has %1!d! bits", "8 data ", "WIDTH"}));
    EXPECT_EQ(texts_of(gnl_msg_interface->create_gnl_msg_d("at %1!.1f!", 0.5)),
              (post_texts{"at 0.5", "at %1!.1f!", "0.5 ", ""}));
}

TEST_F(Messages, EachFactoryMakesItsKindOfPost)
{
    std::unique_ptr<GNL_MSG_POST> const posts[]{
        std::unique_ptr<GNL_MSG_POST>(gnl_msg_interface_export.create_gnl_msg_i("%1!s!", 1, "x")),
        std::unique_ptr<GNL_MSG_POST>(gnl_msg_interface_export.create_gnl_msg_w("%1!s!", 1, "x")),
        std::unique_ptr<GNL_MSG_POST>(gnl_msg_interface_export.create_gnl_msg_e("%1!s!", 1, "x")),
        std::unique_ptr<GNL_MSG_POST>(gnl_msg_interface_export.create_gnl_msg_d("%1!s!", "x"))};
    EXPECT_TRUE(posts[0]->is_info_msg());
    EXPECT_TRUE(posts[1]->is_warning_msg());
    EXPECT_TRUE(posts[2]->is_error_msg());
    EXPECT_TRUE(posts[3]->is_debug_msg());
    for (auto const & post : posts)
        EXPECT_EQ(post->get_msg_text(), "x");
    EXPECT_EQ(gnl_msg_interface, &gnl_msg_interface_export);
}

TEST_F(Messages, WithoutASlashThereIsNoHelp)
{
    EXPECT_EQ(texts_of(gnl_msg_interface->create_gnl_msg_e("plain", 1)), (post_texts{"plain", "plain", "", ""}));
    EXPECT_EQ(texts_of(gnl_msg_interface->create_gnl_msg_e("%1!s! is missing", 1, "a/b")),
              (post_texts{"a/b is missing", "%1!s! is missing", "a/b ", ""}));
}

TEST_F(Messages, TheHelpStandsBehindTheLastSlash)
{
    EXPECT_EQ(texts_of(gnl_msg_interface->create_gnl_msg_e("and/or/HELP", 1)),
              (post_texts{"and/or", "and/or", "", "HELP"}));
    EXPECT_EQ(texts_of(gnl_msg_interface->create_gnl_msg_e("%1!s! is missing/HELP", 1, "a/b")),
              (post_texts{"a/b is missing", "%1!s! is missing", "a/b ", "HELP"}));
}

TEST_F(Messages, APostCanBeFilledWithoutArgumentsAndAnew)
{
    GNL_MSG_E post;
    post.fill_args("first %1!s!/ONE");
    EXPECT_EQ(post.get_msg_text(), "first (null)");
    EXPECT_EQ(post.get_arguments(), "(null) ");
    EXPECT_EQ(post.get_msg_help_id(), "ONE");
    post.fill_args("second");
    EXPECT_EQ(post.get_msg_text(), "second");
    EXPECT_EQ(post.get_arguments(), "");
    EXPECT_EQ(post.get_msg_help_id(), "");
    post.fill_args(nullptr);
    EXPECT_EQ(post.get_msg_text(), "");
}

// The handler

TEST_F(Messages, HandlerStoresInPostingOrderAndCountsErrors)
{
    GNL_MSG_HANDLER handler;
    handler.post_warning_msg("w");
    handler.post_error_msg("e");
    handler.post_info_msg("i");
    EXPECT_EQ(handler.get_error_count(), 1);
    texts stored;
    handler.reset_msg_list();
    while (handler.move_to_next_msg())
        stored.push_back(std::string(handler.get_cur_msg()->get_msg_type()) + " "
                         + handler.get_cur_msg()->get_msg_text());
    EXPECT_EQ(stored, (texts{"WARNING w", "ERROR e", "INFO i"}));
    EXPECT_EQ(handler.get_cur_msg(), nullptr);
    handler.reset_error_count();
    EXPECT_EQ(handler.get_error_count(), 0);
}

TEST_F(Messages, TheErrorCountIsTheProcesss)
{
    GNL_MSG_HANDLER one;
    one.post_error_msg("e");
    EXPECT_EQ(GNL_MSG_HANDLER().get_error_count(), 1);
}

TEST_F(Messages, HandlerTakesPostsWithTheirHelp)
{
    GNL_MSG_HANDLER handler;
    handler.post_msg(gnl_msg_interface->create_gnl_msg_e("e/HELP", 1));
    handler.post_msg(gnl_msg_interface->create_gnl_msg_w("w", 1));
    handler.post_msg(gnl_msg_interface->create_gnl_msg_i("i", 1));
    EXPECT_EQ(handler.get_error_count(), 1);
    handler.reset_msg_list();
    ASSERT_TRUE(handler.move_to_next_msg());
    EXPECT_STREQ(handler.get_cur_msg()->get_msg_type(), "ERROR");
    EXPECT_STREQ(handler.get_cur_msg()->get_msg_help_id(), "HELP");
    ASSERT_TRUE(handler.move_to_next_msg());
    EXPECT_STREQ(handler.get_cur_msg()->get_msg_type(), "WARNING");
    ASSERT_TRUE(handler.move_to_next_msg());
    EXPECT_STREQ(handler.get_cur_msg()->get_msg_type(), "INFO");
    EXPECT_FALSE(handler.move_to_next_msg());
}

TEST_F(Messages, ADebugPostIsDroppedAndDeletedAllTheSame)
{
    class counted_debug_post : public GNL_MSG_D
    {
    public:
        explicit counted_debug_post(int & deleted)
            : m_deleted(deleted)
        {
        }
        ~counted_debug_post() override { ++m_deleted; }

    private:
        int & m_deleted;
    };
    int deleted = 0;
    GNL_MSG_HANDLER handler;
    handler.post_msg(new counted_debug_post(deleted));
    EXPECT_EQ(deleted, 1);
    EXPECT_FALSE(handler.move_to_next_msg());
}

// The text of an error

TEST_F(Messages, ErrorTextHasCauseAndActionIfGiven)
{
    design top(nullptr);
    top.generator_error("m", nullptr, nullptr);
    top.generator_error("m", "c", nullptr);
    top.generator_error(std::string("m"), "c", "a");
    top.generator_error("m", "", "");
    EXPECT_EQ(top.messages(), (texts{"ERROR GNL_INTERNAL_ERROR: m", "ERROR GNL_INTERNAL_ERROR: m CAUSE : c",
                                     "ERROR GNL_INTERNAL_ERROR: m CAUSE : c ACTION : a",
                                     "ERROR GNL_INTERNAL_ERROR: m CAUSE :  ACTION : "}));
}

TEST_F(Messages, AnActionWithoutACauseShowsThatTheCauseIsMissing)
{
    design top(nullptr);
    top.generator_error("m", nullptr, "a");
    EXPECT_EQ(top.messages(), (texts{"ERROR GNL_INTERNAL_ERROR: m CAUSE : (null)"}));
}

TEST_F(Messages, SourceNameAndText)
{
    design top(nullptr);
    top.generator_error("s", "n", std::string("t"));
    top.generator_warning("s", "n", "t");
    top.generator_info("s", "n", "");
    EXPECT_EQ(top.messages(), (texts{"ERROR GNL_INTERNAL_ERROR: (s) n t", "WARNING GNL_INTERNAL_WARNING: (s) n t",
                                     "INFO GNL_INTERNAL_INFO: (s) n "}));
}

// The way up and the limit

TEST_F(Messages, AChildsMessagesEndInTheTop)
{
    design top(nullptr);
    design & middle = top.child("middle", "m");
    design & leaf = middle.child("leaf", "l");
    leaf.generator_error("e", nullptr, nullptr);
    leaf.generator_warning("s", "n", "w");
    leaf.post_info_msg("i");
    leaf.post_messages_on_generator(gnl_msg_interface->create_gnl_msg_w("p", 1));
    leaf.post_warning_messages_on_generator("q");
    EXPECT_EQ(leaf.messages(), texts{});
    EXPECT_EQ(middle.messages(), texts{});
    EXPECT_EQ(top.messages(),
              (texts{error("e"), "WARNING GNL_INTERNAL_WARNING: (s) n w", "INFO i", "WARNING p", "WARNING q"}));
}

TEST_F(Messages, AGeneratorInBetweenMayTakeAMessage)
{
    class deaf : public design
    {
    public:
        using design::design;
        void post_error_msg(char const * text) const override { taken.emplace_back(text); }
        mutable texts taken;
    };
    design top(nullptr);
    auto & middle = *new deaf(&top, "middle");
    middle.set_instance_name("m");
    middle.child("leaf", "l").generator_error("e", nullptr, nullptr);
    EXPECT_EQ(middle.taken, (texts{"GNL_INTERNAL_ERROR: e"}));
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Messages, TheFirstErrorBeyondTheLimitEndsTheList)
{
    design top(nullptr, "top", "LBX_MAX_ERROR_MESSAGES=2");
    for (char const * text : {"a", "b", "c", "d"})
        top.post_error_msg(text);
    top.post_warning_msg("w");
    top.post_info_msg("i");
    EXPECT_EQ(top.messages(), (texts{"ERROR a", "ERROR b", "ERROR Too many error messages. Message Limit Exceeded 2",
                                     "WARNING w", "INFO i"}));
    EXPECT_EQ(top.msg_handler().get_error_count(), 3);
}

TEST_F(Messages, ALimitOfNoneStoresOnlyTheLineThatSaysSo)
{
    design top(nullptr, "top", "LBX_MAX_ERROR_MESSAGES=0");
    top.post_error_msg("a");
    top.post_error_msg("b");
    EXPECT_EQ(top.messages(), (texts{"ERROR Too many error messages. Message Limit Exceeded 0"}));
}

TEST_F(Messages, TheLimitIsFiftyByDefaultAndAtNegativeValues)
{
    for (char const * text : {"", "LBX_MAX_ERROR_MESSAGES=-3"}) {
        GNL_MSG_HANDLER().reset_error_count();
        design top(nullptr, "top", text);
        texts expected;
        for (int i = 0; i < 53; ++i) {
            auto const message = std::to_string(i);
            top.post_error_msg(message.c_str());
            if (i < 50)
                expected.push_back("ERROR " + message);
        }
        expected.emplace_back("ERROR Too many error messages. Message Limit Exceeded 50");
        EXPECT_EQ(top.messages(), expected);
        EXPECT_EQ(top.msg_handler().get_error_count(), 51);
    }
}

TEST_F(Messages, InsideABodyTheLimitEndsTheBody)
{
    design top(nullptr, "top", "LBX_MAX_ERROR_MESSAGES=1");
    top.initialize_param_list();
    top.set_in_rtl_body();
    top.post_error_msg("a");
    bool raised = true;
    try {
        top.post_error_msg("b");
        FAIL() << "the body went on";
    } catch (bool value) {
        raised = value;
    }
    EXPECT_FALSE(raised);
    EXPECT_NO_THROW(top.post_error_msg("c"));
    EXPECT_EQ(top.messages(), (texts{"ERROR a", "ERROR Too many error messages. Message Limit Exceeded 1"}));
}

TEST_F(Messages, PostsAreLimitedAlike)
{
    int deleted = 0;
    design top(nullptr, "top", "LBX_MAX_ERROR_MESSAGES=1");
    design & sub = top.child("sub", "s");
    sub.post_msg(new counted_post(deleted));
    EXPECT_EQ(deleted, 1);
    top.set_in_rtl_body();
    EXPECT_THROW(sub.post_msg(new counted_post(deleted)), bool);
    EXPECT_EQ(deleted, 2); // the message in hand was dropped
    auto const beyond = std::make_unique<counted_post>(deleted);
    sub.post_msg(beyond.get());
    EXPECT_EQ(deleted, 2); // and one beyond stays the caller's
    sub.post_msg(gnl_msg_interface->create_gnl_msg_w("w", 1));
    EXPECT_EQ(top.messages(),
              (texts{"ERROR ", "ERROR Too many error messages. Message Limit Exceeded 1", "WARNING w"}));
}

TEST_F(Messages, APostOfNothingIsNoMessage)
{
    design top(nullptr);
    top.post_msg(nullptr);
    GNL_MSG_HANDLER().post_msg(nullptr);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Messages, AnAssertedPostIsPostedIfTheConditionIsTrue)
{
    int deleted = 0;
    design top(nullptr);
    top.gnl_msg_assert(false, new counted_post(deleted));
    EXPECT_EQ(deleted, 1);
    EXPECT_EQ(top.messages(), texts{});
    top.gnl_msg_assert(true, gnl_msg_interface->create_gnl_msg_e("e", 1));
    EXPECT_EQ(top.messages(), (texts{"ERROR e"}));
}

// Raised errors

std::string raised_by(std::function<void()> const & call)
{
    try {
        call();
    } catch (char * text) {
        std::unique_ptr<char[]> const owned(text);
        return text;
    }
    return "nothing";
}

TEST_F(Messages, ErrorsAreRaisedOnRequest)
{
    design top(nullptr, "top", "LBX_THROW_EXCEPTION_ON_ERROR=on");
    design & sub = top.child("sub", "s");
    EXPECT_EQ(raised_by([&] { top.generator_error("m", "c", "a"); }), "GNL_INTERNAL_ERROR: m CAUSE : c ACTION : a");
    EXPECT_EQ(raised_by([&] { sub.generator_error("s", "n", std::string("t")); }), "GNL_INTERNAL_ERROR: (s) n t");
    EXPECT_EQ(raised_by([&] { top.generator_warning("s", "n", "t"); }), "nothing");
    EXPECT_EQ(raised_by([&] { top.post_error_msg("posted"); }), "nothing");
    EXPECT_EQ(top.messages(), (texts{"WARNING GNL_INTERNAL_WARNING: (s) n t", "ERROR posted"}));
}

TEST_F(Messages, AnErrorWhileTheOptionsAreReadIsPostedAndTheOneAtHandIsRaised)
{
    // Only the error brings the text in, and the text names an instance as another is named.
    design top(nullptr, "top", "LBX_THROW_EXCEPTION_ON_ERROR=ON");
    top.child("sub", "same");
    design second(&top, "other", "iname=same");
    EXPECT_EQ(raised_by([&] { second.generator_error("asked", nullptr, nullptr); }), "GNL_INTERNAL_ERROR: asked");
    ASSERT_EQ(top.messages().size(), 1U);
    EXPECT_EQ(top.messages()[0].substr(0, 48), "ERROR GNL_INTERNAL_ERROR: Instance name same is ");
}

TEST_F(Messages, AnOptionOfAnyTextIsNoReasonToRaise)
{
    design top(nullptr, "top", "LBX_THROW_EXCEPTION_ON_ERROR=perhaps,LBX_MAX_ERROR_MESSAGES=many");
    EXPECT_NO_THROW(top.generator_error("m", nullptr, nullptr));
}

// Assertions and the way out of a body

using scenario = std::function<void(design &)>;

std::map<gnl_detail::report_message, std::pair<scenario, texts>> report_scenarios()
{
    using id = gnl_detail::report_message;
    auto const ignore_abort = [](auto call) {
        try {
            call();
        } catch (bool) {
        }
    };
    return {
        {id::too_many_errors,
         {[](design & top) {
              top.post_error_msg("a");
              top.post_error_msg("b");
          },
          {"ERROR a", "ERROR Too many error messages. Message Limit Exceeded 1"}}},
        {id::assertion_inside_body,
         {[=](design & top) {
              top.set_in_rtl_body();
              ignore_abort([&] { top.gnl_assert_check(false, 12, "folder/body.cpp"); });
          },
          {error("Assertion failure inside rtl_body at folder/body.cpp:12",
                 "The condition in GNL_ASSERT () failed.")}}},
        {id::assertion_outside_body,
         {[](design & top) { top.gnl_assert_check(false, 12, "folder/body.cpp"); },
          {error("Assertion failure outside rtl_body at folder/body.cpp:12",
                 "The condition in GNL_ASSERT () failed.")}}},
        {id::exit_outside_body,
         {[](design & top) {
              design & sub = top.child("sub", "s");
              top.post_error_msg("a");
              sub.exit_if_error();
          },
          {"ERROR a", "INFO GNL_INTERNAL_INFO: ( Wrong use of 'exit if error:' command : this can only be used inside "
                      "the rtl_body) top|sub inst s "}}},
    };
}

TEST_F(Messages, EveryReportMessage)
{
    auto const scenarios = report_scenarios();
    for (std::size_t i = 0; i < std::size(gnl_detail::report_message_texts); ++i) {
        SCOPED_TRACE(gnl_detail::report_message_texts[i].id);
        auto const found = scenarios.find(static_cast<gnl_detail::report_message>(i));
        ASSERT_NE(found, scenarios.end()) << "no scenario raises this message";
        GNL_MSG_HANDLER().reset_error_count();
        design top(nullptr, "top", "LBX_MAX_ERROR_MESSAGES=1");
        top.initialize_param_list();
        found->second.first(top);
        EXPECT_EQ(top.messages(), found->second.second);
    }
}

TEST_F(Messages, AnAssertionThatHoldsIsSilent)
{
    design top(nullptr);
    top.set_in_rtl_body();
    EXPECT_NO_THROW(top.gnl_assert_check(true, 1, "f"));
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Messages, AnAssertionEndsABodyAndNothingElse)
{
    design top(nullptr);
    EXPECT_NO_THROW(top.gnl_assert_check(false, 1, nullptr));
    top.set_in_rtl_body();
    EXPECT_THROW(top.gnl_assert_check(false, 1, "f"), bool);
    EXPECT_EQ(top.messages()[0],
              error("Assertion failure outside rtl_body at :1", "The condition in GNL_ASSERT () failed."));
}

TEST_F(Messages, ExitLeavesABodyOnlyAfterAnError)
{
    design top(nullptr);
    top.set_in_rtl_body();
    EXPECT_NO_THROW(top.exit_if_error());
    top.post_warning_msg("w");
    EXPECT_NO_THROW(top.exit_if_error());
    top.post_error_msg("e");
    EXPECT_THROW(top.exit_if_error(), bool);
}

TEST_F(Messages, InsertsAreFilledByNumberAndNotTwice)
{
    using gnl_detail::fill_inserts;
    EXPECT_EQ(fill_inserts("{1} {0} {1}", {"a", "b"}), "b a b");
    EXPECT_EQ(fill_inserts("{0}", {"{1}"}), "{1}");
    EXPECT_EQ(fill_inserts("{2} {} { {0", {"a"}), "{2} {} { {0");
    EXPECT_EQ(fill_inserts("", {"a"}), "");
}

} // namespace

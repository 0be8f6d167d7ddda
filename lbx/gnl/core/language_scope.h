#pragma once

namespace gnl_detail {

/// Writes in another language while it lives. The language is a setting of the whole process, which generators alone
/// may change, so that a member hands its `set_gen_language` in.
class language_scope
{
public:
    language_scope(void (*set_language)(int), int language, int outer)
        : m_set_language(set_language)
        , m_outer(outer)
    {
        m_set_language(language);
    }
    ~language_scope() { m_set_language(m_outer); }
    language_scope(language_scope const &) = delete;
    language_scope & operator=(language_scope const &) = delete;

private:
    void (*m_set_language)(int);
    int m_outer;
};

} // namespace gnl_detail

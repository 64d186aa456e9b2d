// SPDX-License-Identifier: GPL-3.0-or-later
#include "db/jetcondition.h"

#include "db/jettokens.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace {

struct Literal {
    std::optional<double> Number;
    std::string Text;
};

std::string Lower(std::string_view text)
{
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](unsigned char c) { return char(std::tolower(c)); });
    return out;
}

} // namespace

struct JetCondition::Node {
    enum class Op { Or, And, Not, Compare, Between, IsNull };
    Op Kind = Op::Compare;
    std::vector<Node> Children;
    std::string Field;
    std::string Comparison; // one of = <> < > <= >=
    std::vector<Literal> Values;
    bool Negated = false; // IS NOT NULL
};

namespace {

using Node = JetCondition::Node;

// condition := term {OR term}; term := factor {AND factor};
// factor := NOT factor | ( condition ) | field op value | field BETWEEN value AND value
//         | field IS [NOT] NULL
class Parser {
public:
    Parser(std::vector<Token> tokens, const std::vector<JetValue>& parameters,
           std::vector<std::string>& fields, std::string& error)
        : tokens_(std::move(tokens)), parameters_(parameters), fields_(fields), error_(error)
    {
    }

    std::optional<Node> Whole()
    {
        auto node = Condition();
        if (node && pos_ < tokens_.size())
            return Fail("Syntax error in search condition near '" + tokens_[pos_].Text + "'.");
        if (node && used_ != parameters_.size())
            return Fail("The search condition and its values do not match.");
        return node;
    }

private:
    std::optional<Node> Fail(const std::string& message)
    {
        if (error_.empty())
            error_ = message;
        return std::nullopt;
    }

    bool AcceptWord(std::string_view word)
    {
        const bool ok = pos_ < tokens_.size() && IsWord(tokens_[pos_], word);
        pos_ += ok ? 1 : 0;
        return ok;
    }

    bool AcceptSymbol(std::string_view symbol)
    {
        const bool ok = pos_ < tokens_.size() && IsSymbol(tokens_[pos_], symbol);
        pos_ += ok ? 1 : 0;
        return ok;
    }

    // Joins operands of one kind: OR over terms, AND over factors.
    template <typename Next>
    std::optional<Node> Chain(Node::Op op, std::string_view word, Next next)
    {
        auto first = next();
        if (!first || pos_ >= tokens_.size() || !IsWord(tokens_[pos_], word))
            return first;
        Node chain{op, {std::move(*first)}, {}, {}, {}, false};
        while (AcceptWord(word)) {
            auto operand = next();
            if (!operand)
                return std::nullopt;
            chain.Children.push_back(std::move(*operand));
        }
        return chain;
    }

    std::optional<Node> Condition()
    {
        return Chain(Node::Op::Or, "or", [this] { return Term(); });
    }

    std::optional<Node> Term()
    {
        return Chain(Node::Op::And, "and", [this] { return Factor(); });
    }

    std::optional<Node> Factor()
    {
        if (AcceptWord("not")) {
            auto operand = Factor();
            if (!operand)
                return std::nullopt;
            return Node{Node::Op::Not, {std::move(*operand)}, {}, {}, {}, false};
        }
        if (AcceptSymbol("(")) {
            auto inner = Condition();
            if (inner && !AcceptSymbol(")"))
                return Fail("Missing ) in search condition.");
            return inner;
        }
        return Comparison();
    }

    std::optional<Node> Comparison()
    {
        static constexpr std::string_view Operators[] = {"=", "<>", "<", ">", "<=", ">="};
        if (pos_ >= tokens_.size() || !IsTableName(tokens_[pos_]))
            return Fail("A search condition must start with a field name.");
        Node node;
        node.Field = tokens_[pos_++].Text;
        fields_.push_back(node.Field);
        if (AcceptWord("is")) {
            node.Kind = Node::Op::IsNull;
            node.Negated = AcceptWord("not");
            if (!AcceptWord("null"))
                return Fail("Expected NULL after IS in search condition.");
            return node;
        }
        if (AcceptWord("between")) {
            node.Kind = Node::Op::Between;
            auto low = Value();
            auto high = low && AcceptWord("and") ? Value() : std::nullopt;
            if (!high)
                return Fail("Expected 'value AND value' after BETWEEN.");
            node.Values = {*low, *high};
            return node;
        }
        for (const std::string_view op : Operators) {
            if (AcceptSymbol(op)) {
                node.Comparison = op;
                auto value = Value();
                if (!value)
                    return std::nullopt;
                node.Values = {*value};
                return node;
            }
        }
        return Fail("Expected a comparison after '" + node.Field + "'.");
    }

    std::optional<Literal> Parameter()
    {
        if (used_ >= parameters_.size()) {
            Fail("The search condition and its values do not match.");
            return std::nullopt;
        }
        const JetValue& p = parameters_[used_++];
        return Literal{p.Number, p.Text};
    }

    std::optional<Literal> Value()
    {
        if (AcceptSymbol("?"))
            return Parameter();
        const bool negative = AcceptSymbol("-");
        if (pos_ >= tokens_.size()) {
            Fail("A search condition ends without a value.");
            return std::nullopt;
        }
        const Token& t = tokens_[pos_++];
        if (t.Kind == TokenKind::Number) {
            double number = 0.0;
            const auto [end, ec] =
                std::from_chars(t.Text.data(), t.Text.data() + t.Text.size(), number);
            if (ec == std::errc() && end == t.Text.data() + t.Text.size())
                return Literal{negative ? -number : number, t.Text};
        } else if (!negative && (t.Kind == TokenKind::String || t.Kind == TokenKind::Literal)) {
            return Literal{std::nullopt, t.Text};
        }
        Fail("Not a value in search condition: '" + t.Text + "'.");
        return std::nullopt;
    }

    std::vector<Token> tokens_;
    std::size_t pos_ = 0;
    const std::vector<JetValue>& parameters_;
    std::size_t used_ = 0;
    std::vector<std::string>& fields_;
    std::string& error_;
};

// The order of a value and a literal; nothing when they cannot be compared (null, or a
// number against a text that is not numeric).
std::optional<int> Order(const JetValue& value, const Literal& literal)
{
    if (value.Null)
        return std::nullopt;
    if (literal.Number) {
        if (!value.Number)
            return std::nullopt;
        return *value.Number < *literal.Number ? -1 : *value.Number > *literal.Number ? 1 : 0;
    }
    const int c = Lower(value.Text).compare(Lower(literal.Text)); // text compares ignore case
    return c < 0 ? -1 : c > 0 ? 1 : 0;
}

bool Holds(const std::string& comparison, int order)
{
    if (comparison == "=")
        return order == 0;
    if (comparison == "<>")
        return order != 0;
    if (comparison == "<")
        return order < 0;
    if (comparison == ">")
        return order > 0;
    if (comparison == "<=")
        return order <= 0;
    return order >= 0;
}

bool Evaluate(const Node& node, const std::function<JetValue(std::string_view)>& valueOf)
{
    const auto any = [&](bool wanted) {
        return std::any_of(node.Children.begin(), node.Children.end(),
                           [&](const Node& c) { return Evaluate(c, valueOf) == wanted; });
    };
    switch (node.Kind) {
    case Node::Op::Or:
        return any(true);
    case Node::Op::And:
        return !any(false);
    case Node::Op::Not:
        return !Evaluate(node.Children.front(), valueOf);
    case Node::Op::IsNull:
        return valueOf(node.Field).Null != node.Negated;
    case Node::Op::Between: {
        const JetValue value = valueOf(node.Field);
        const auto low = Order(value, node.Values[0]);
        const auto high = Order(value, node.Values[1]);
        return low && high && *low >= 0 && *high <= 0;
    }
    case Node::Op::Compare:
        break;
    }
    const auto order = Order(valueOf(node.Field), node.Values.front());
    return order && Holds(node.Comparison, *order);
}

} // namespace

std::optional<JetCondition> JetCondition::Parse(std::string_view text, std::string& error,
                                                const std::vector<JetValue>& parameters)
{
    Tokens tokens = Tokenize(text);
    error = tokens.Error;
    if (!error.empty())
        return std::nullopt;
    JetCondition condition;
    auto root = Parser(std::move(tokens.List), parameters, condition.fields_, error).Whole();
    if (!root)
        return std::nullopt;
    condition.root_ = std::make_shared<const Node>(std::move(*root));
    return condition;
}

bool JetCondition::Matches(const std::function<JetValue(std::string_view field)>& valueOf) const
{
    return Evaluate(*root_, valueOf);
}

/* What the example programs share that is no signal processing: options, help and messages. */
#ifndef EXAMPLES_PROGRAM_H
#define EXAMPLES_PROGRAM_H

#include <float.h>

#include <tarns.h>

typedef enum {
    flagOption,   /* no value; target is an int, which becomes 1 */
    wholeOption,  /* target is an int */
    numberOption, /* target is a double */
    choiceOption, /* one of `choices`; target is an int, its place */
    textOption    /* target is a const char* */
} OptionKind;

typedef struct {
    OptionKind kind;
    const char* name;  /* "--rate" */
    const char* value; /* what the help calls its value: "HZ"; NULL for a flag */
    const char* help;  /* more than one line if there are line breaks in it; the default comes behind it */
    void* target;      /* keeps what it has if the option is not given */
    double least;      /* of numbers; aboveZero for those that must only be above it */
    double most;
    const char* const* choices; /* the last is NULL */
} Option;

#define aboveZero DBL_MIN

typedef struct {
    const char* name;
    const char* arguments; /* behind the name in the first line of the help */
    const char* about;     /* a paragraph, which ends with a line break */
    const Option* options;
    int optionCount;
    int leastOperands; /* arguments that are no options */
    int mostOperands;
} Program;

/* Reads the arguments into the options' targets and the operands, and remembers the program for messages. Answers -h
   and
   --help, and refuses what it does not know or cannot take: then the program ends here. Returns how many operands there
   are. */
int parseArguments(const Program* program, int argc, char** argv, const char** operands);

/* A whole number, as options have it. Ends the program if it is none, or out of bounds. */
int parseWhole(const char* what, const char* text, double least, double most);

/* Says on the standard error what went wrong; 0, for the caller to return. */
int fail(const char* what, const char* reason);

/* 1, or the message of a status that is an error. */
int succeeded(const char* what, TarnStatus status);

/* Whether all that was printed arrived. */
int outputArrived(void);

/* The name of the program that parses its arguments, or "example". */
const char* programName(void);

#endif

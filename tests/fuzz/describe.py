#!/usr/bin/env python3
"""Reads from the comments of the public headers what a caller has to know of a function: how many elements each of its
arrays has, which pointers may be null, and which statuses it answers with: describe.py OUTPUT INCLUDE_DIRECTORY

One line a function, DESCRIBED("name", (statuses), "argument=size;...") where a size is a formula over the function's own
integers and the properties of its object (see objects.cpp), a `?` behind it allows null, and `argument=` alone is
a comment that tells no size.
"""
import pathlib
import re
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
import public_headers
from regular import RESULT

UNITS = r"(?:complex |real |imaginary )?(?:elements|reals|integers|samples|bytes|halves|words|results|parts|points|values)\b"
ONE = re.compile(r"^(gets the (?:number|nearest entry|its)|gets its index$|gets `|phase of the first|index of the first|place of the"
                 r"|the seed|sample, and|record to fill|the array, or|any value|where |the average|its index|the received)")
NULL = re.compile(r"\bor null\b|[Nn]ull for (?!a )|null is accepted|null if it is not wanted|any value, not looked at")

# Where the comment speaks of another function's argument, of a format or of a type: pattern of the name, argument, size.
SPECIAL = [(name and re.compile(name), argument, size) for name, argument, size in (
    (r"(DFT|FFT)\w*RToCCS", "pDst", "max(N+2-N%2,2)"),
    (r"(DFT|FFT)\w*CCSToR", "pSrc", "max(N+2-N%2,2)"),
    (r"(DFT|FFT)Inv_P(erm|ack)ToR", "pSrc", "N"),
    (r"tarnsConvCyclic8x8", None, "8"),
    (r"tarnsConvCyclic4x4", None, "4"),
    (r"tarnsConjCcs", "pSrc", "len+2-len%2"),
    (r"tarnsSampleDown", "pDst", "(srcLen-phase+factor-1)/factor"),
    (r"tarnsJoin", "pDst", "nChannels*chanLen"),
    (r"tarnsJoin", "pSrc", "chanLen"),
    (r"tarnsUpdate", "pSrcDst", "1"),
    (r"tarnsConvert_24|tarnsSwapBytes_24", "pSrc|pSrcDst", "3*len"),
    (r"tarnsConvert_\w*24[us](_Sfs)?$|tarnsSwapBytes_24", "pDst", "3*len"),
    (r"tarnsFindNearest", "pTable", "tblLen"),
    (r"tarnsFindNearest_", "pVals|pOutVals|pOutIndexes", "len"),
    (r"tarns(DCT|Hilbert)", "pSrc|pDst", "N"),
    (r"tarns\w*GetBufSize", "pSize", "1"),
    (r"tarnsFIRGetTaps", "pTapsFactor", "1"),
    (r"tarnsFIR(?!MR|One|LMS)(?!\w*Direct)\w*_I(Sfs)?$", "pSrcDst", "numIters*max(up,down)"),
    (r"tarnsFIR(?!MR|One|LMS)(?!\w*Direct)\w*_", "pSrc", "numIters*down"),
    (r"tarnsFIR(?!MR|One|LMS)(?!\w*Direct)\w*_", "pDst", "numIters*up"),
    (r"tarnsFIRMR\w*Direct\w*_I(Sfs)?$", "pSrcDst", "numIters*max(upFactor,downFactor)"),
    (None, "pBuffer", "bytes"),
    (r"tarnsFIRMRInit", "pTaps", "tapsLen"),
    (r"tarnsFIRMRInit", "pDlyLine", "(tapsLen+upFactor-1)/upFactor"),
    (r"tarnsIIR(One)?(Init\w*)?_?BiQuad|tarnsIIR\w*_BiQuad", "pTaps", "6*numBq"),
    (r"tarnsIIR\w*BiQuad", "pDlyLine", "2*numBq"),
    (r"tarnsIIR(Init|One_Direct|_Direct)", "pTaps", "2*order+2"),
    (r"tarnsIIR(Init|One_Direct|_Direct)", "pDlyLine", "order"),
    (r"tarns(FIR|IIR)SetTaps|tarnsFIRGetTaps|tarnsFIRLMS(MR)?(Get|Set)Taps", "pTaps", "taps"),
    (r"tarns(FIR|IIR)(Get|Set)DlyLine|tarnsFIRLMS(MR)?(Get|Set)DlyLine", "pDlyLine", "delay"),
    (r"tarnsWT(Fwd|Inv)(Get|Set)DlyLine", "pDlyLow", "delayLow"),
    (r"tarnsWT(Fwd|Inv)(Get|Set)DlyLine", "pDlyHigh", "delayHigh"),
    (r"tarnsGoertzTwo", "pVal", "2"),
    (r"tarnsGoertzTwo", "rFreq", "2"),
    (r"tarnsGetVarPointDV", "pSubsetError", "8"),
    (r"tarnsGetVarPointDV", "pSubsetMap", "16"),
    (r"tarnsBuildSymblTableDV", "pSubsetError", "16"),
    (r"tarns\w*DV", "pBranchTable", "numStates/2"),
    (r"tarns\w*DV", "p(New|Path)Metric", "numStates"),
    (r"tarns\w*DV", "pNextState", "numStates*numStates/4"),
    (r"tarns\w*DV", "pSurvivor", "offset+numStates"),
)]

STATUSES_OF_A_TRANSFORM = ["tarnStsNoMemErr", "tarnStsFftOrderErr", "tarnStsSizeErr"]


def formula(text, names):
    """The last product or sum in front of a unit: "2 `dstLen` elements" is 2*dstLen."""
    for unit in re.finditer(UNITS, text):
        front = text[:unit.start()]
        tokens = re.findall(r"[`\w^]+(?:\([^)]*\))?|[-+/(),]|\S", front)
        taken = []
        for token in reversed(tokens):
            bare = token.strip("`")
            if bare == "times" and taken:
                bare = "*"
            if bare in names or re.fullmatch(r"\d+|[-+/()*]", bare):
                taken.append(bare)
            else:
                break
        taken.reverse()
        while taken and taken[0] in "+-*/)":
            taken.pop(0)
        while taken and taken.count(")") < taken.count("("):
            taken.pop(0)
        if not taken:
            continue
        out = taken[0]
        for before, token in zip(taken, taken[1:]):
            juxtaposed = re.fullmatch(r"\w+|\)", before) and re.fullmatch(r"\w+|\(", token)
            out += ("*" if juxtaposed else "") + token
        return out
    return ""


def size_of(function, argument, names):
    for pattern, name, size in SPECIAL:
        if (pattern is None or pattern.search(function.name)) and (name is None or re.fullmatch(name, argument.name)):
            return size
    if argument.depth == 2:
        return "1"
    if re.match(r"memory that becomes", argument.doc):
        return "bytes"
    found = formula(argument.doc, names)
    if found:
        return found
    return "1" if RESULT.match(argument.doc) or ONE.match(argument.doc) else ""


def statuses_of(function, before):
    text = re.search(r"^@return\b(.*)", function.doc, re.MULTILINE | re.DOTALL)
    text = " ".join(text[1].split()) if text else ""
    found = list(dict.fromkeys(re.findall(r"\btarnSts\w+", text)))
    if re.match(r"as ", text):
        found += [status for status in before if status not in found]
    if re.search(r"status of (a|the|tarns)\b", text):
        found += [status for status in STATUSES_OF_A_TRANSFORM if status not in found]
    return found


def main():
    output, directory = sys.argv[1:]
    lines = []
    before = []
    for function in public_headers.read(directory):
        statuses = statuses_of(function, before)
        before = statuses or before
        names = {argument.name for argument in function.arguments if argument.depth == 0} | {"N"}
        sizes = []
        for argument in function.arguments:
            if argument.depth == 0:
                continue
            size = "0" if "Tarns" in argument.type and argument.depth == 1 and "becomes" not in argument.doc else (
                size_of(function, argument, names))
            sizes.append(f"{argument.name}={size}{'?' if NULL.search(argument.doc) else ''}")
        listed = ", ".join(statuses)
        lines.append(f'DESCRIBED("{function.name}", ({{{listed}}}), "{";".join(sizes)}")\n')
    pathlib.Path(output).write_text("".join(lines))


main()

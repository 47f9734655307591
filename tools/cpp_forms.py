"""How a C++ overload calls an exported function, made from its prototype."""
import re

from cpp_names import CALLS, FROM_SECOND, ORDER, PARAMETERS, REQUIRED_SIZE, WITH_ALPHA, cpp_name, query_of, snake
from derive import parameter

TYPE = "8u|8s|16u|16s|32u|32s|32fc|32f|64f"
NAME = re.compile(rf"qvpi(?P<operation>\w+?)_(?P<type>(?:{TYPE}){{1,2}})_(?P<layout>(?:A?[CP]\d)+C?)M?R(?:Sfs|s)?$")
TYPED = re.compile(rf"qvpi(?P<operation>Resize\w+)_(?P<type>{TYPE})$")
SIZES = {"roi_size", "src_roi_size", "dst_roi_size", "src_size", "dst_size", "tpl_roi_size", "a_size", "b_size"}
SOURCES = ("src", "a", "b", "tpl")
SELECTORS = re.compile(r"Qvpi?(RoundMode|HintAlgorithm|LookupMethod|CompositeOp|CmpOp|Method|MatchShape|MatchNorm|"
                       r"Window|NormType|BorderType|InterpolationType|Axis|LBPMode)$")
DEFAULTS = {"scale": "0", "border_value": "{}", "dst_offset": "{0, 0}", "divisor": "1",
            "HintAlgorithm": "HintAlgorithm::fast", "BorderType": "BorderType::replicate",
            "RoundMode": "RoundMode::near", "Method": "Method::automatic"}
RECORD = re.compile(r"Qvpi\w+(Spec|State)(_\w+)?\*")
OPTIONAL = ("gx", "gy", "magnitude", "angle")
# The structures that several results are returned in, and their members.
RESULTS = {("min", "max"): ("Extrema", ("min", "max")),
           ("min", "index_x", "index_y"): ("Extremum", ("value", "x", "y")),
           ("max", "index_x", "index_y"): ("Extremum", ("value", "x", "y"))}


def role_of(label, operation):
    """pSrc -> src, pxMap -> x_map, roiSize -> roi_size; of two sources the first is a, the second b."""
    bare = re.sub(r"^p{1,2}(?=[A-Z]|[xy]Map)", "", label)
    first = "2" if operation in FROM_SECOND else "1"
    role = re.sub(r"^src([12])", lambda match: "a" if match[1] == first else "b", snake(bare))
    return PARAMETERS.get(role, role)


def layout_of(operation, text, role):
    """The C++ layout of the image with this role, of a function whose name has a layout like C3 or C1C4."""
    if role in ("mask", "x_map", "y_map") or operation.startswith("Compare") and role == "dst":
        return "1"
    if operation == "FilterGuidedColorBorder" and role == "guide":
        return "3"
    parts = re.findall(r"A?[CP]\d", text)
    own, other = (parts[0], parts[-1]) if role in SOURCES else (parts[-1], parts[0])
    is_channel = text.endswith("C") or operation == "Copy" and other == "C1" and own in ("C3", "C4")
    if is_channel:
        return f"OneOf{own[-1]}"
    return "AC4" if own == "AC4" and operation not in WITH_ALPHA else own[-1]


class Parameter:
    """A parameter of a C function: its type, its name, and what it is."""

    def __init__(self, declaration, operation):
        self.kind, label = parameter(declaration)
        self.role = role_of(label, operation)
        length = re.search(r"\[(\d+)\]$", declaration)
        self.length = int(length[1]) if length else None
        self.is_pointer = self.kind.endswith(("*", "]")) or "[" in declaration
        self.is_const = self.kind.startswith("const ")
        self.element = re.sub(r"^const | ?\*.*$", "", self.kind)
        self.is_planar = bool(re.search(r"\* ?const", declaration)) and bool(self.length)


class Form:
    """An overload with views. `parameters` are (type, name, default); `passed` are the arguments of the C function."""

    @classmethod
    def of(cls, name, declarations, exported):
        match = NAME.match(name) or TYPED.match(name)
        if not match:
            return None
        c_parameters = [Parameter(declaration, match["operation"]) for declaration in declarations]
        has_record = TYPED.match(name) or any(RECORD.search(each.kind) for each in c_parameters)
        return (Call if has_record else cls)(name, match, c_parameters, exported)

    def __init__(self, name, match, c_parameters, exported):
        self.c_name, self.c_parameters, self.exported = name, c_parameters, exported
        self.operation, self.type = match["operation"], match["type"]
        self.layout = match.groupdict().get("layout") or ""
        self.cpp_name = cpp_name(self.operation)
        self.first_of_kind = re.sub(r"_(8u|16s|16u|32f|32s|8s|64f|32u|32fc).*$", "", name)
        self.roles = {each.role for each in c_parameters}
        self.images = [each.role for each in c_parameters if self.is_image(each)]
        self.parameters, self.passed, self.outputs = [], [], []
        for each in c_parameters:
            self.passed.append(self.argument(each))
        self.put_in_order()

    def is_image(self, each):
        return each.is_pointer and f"{each.role}_step" in self.roles

    def layout_of(self, role):
        return layout_of(self.operation, self.layout, role)

    def region(self):
        """The image whose size is that of the region."""
        fixed = REQUIRED_SIZE.get(self.operation)
        return fixed[0] if fixed else "dst" if "dst" in self.images else self.images[0]

    def image_for(self, size):
        """The image whose size a parameter tells."""
        named = re.sub(r"_(roi_)?size$", "", size)
        return named if named in self.images else self.region()

    def is_free(self, role):
        """Whether an image may have a size of its own."""
        own = {f"{role}_size", f"{role}_roi_size"} & self.roles
        return bool(own) or role == "src" and self.operation.startswith(("Resize", "Warp"))

    def argument(self, each):
        """What is passed on for a parameter of the C function; adds a parameter to the overload if it needs one."""
        if self.is_image(each):
            return self.image(each)
        if each.role.endswith("_step") and each.role.removesuffix("_step") in self.images:
            return f"{each.role.removesuffix('_step')}.step()"
        if each.role in SIZES and self.images:
            return f"{self.image_for(each.role)}.size()"
        if each.role == "src_roi" and each.kind == "QvpiRect":
            return "src.rect()"
        return self.value(each)

    def image(self, each):
        layout = self.layout_of(each.role)
        if each.is_planar:
            kind = f"PlanarView<{'const ' * each.is_const}{each.element}, {layout}>"
        else:
            kind = f"{'In' if each.is_const else 'Out'}<{each.element}, {layout}>"
        self.add(kind, each.role)
        return f"{each.role}.data()"

    def value(self, each):
        selector = SELECTORS.match("QvpiInterpolationType" if each.role == "interpolation" else each.kind)
        if each.role == "buffer":
            self.add("Buffer&", each.role)
            return "buffer.data()"
        if selector:
            self.add(selector[1], each.role)
            return f"int({each.role})"
        if not each.is_pointer:
            self.add(each.kind, each.role)
            return each.role
        return self.numbers(each)

    def numbers(self, each):
        count = each.length or (self.border_channels() if each.role == "border_value" else 1)
        if not each.is_const and "*const" not in each.kind.replace(" ", ""):
            self.outputs.append((each.role, each.element, each.length))
            return ""  # its place is known when all are
        if each.is_planar:
            self.add(f"const std::array<const {each.element}*, {count}>&", each.role)
            return f"{each.role}.data()"
        if each.role == "border_value" and count == 1:
            self.add(each.element, each.role)
            return f"&{each.role}"
        if each.length or each.role == "border_value":
            self.add(f"const Pixel<{each.element}, {count}>&", each.role)
            return f"{each.role}.data()"
        self.add(each.kind, each.role)
        return each.role

    def border_channels(self):
        layout = self.layout_of(self.images[0])
        return 3 if layout == "AC4" else int(layout[-1])

    def add(self, kind, role):
        self.parameters.append((kind, role, DEFAULTS.get(role, DEFAULTS.get(kind))))

    def put_in_order(self):
        """What has a default comes last, and a buffer before it."""
        wanted = ORDER.get(self.operation, ())
        first = [next(each for each in self.parameters if each[1] == role) for role in wanted]
        rest = [each for each in self.parameters if each not in first]
        required = [each for each in rest if each[2] is None and each[1] != "buffer"]
        self.parameters = [*first, *required, *(each for each in rest if each[1] == "buffer"),
                           *(each for each in rest if each[2] is not None)]

    def labels(self):
        return [f"{name} = {default}" if default is not None else name for _, name, default in self.parameters]

    def least(self):
        """How many arguments a call has to have."""
        return sum(default is None for _, _, default in self.parameters)

    def covers(self, other):
        """Whether some call could mean either form."""
        count = max(self.least(), other.least())
        return count <= len(other.parameters) and all(
            a[0] == b[0] or {a[0], b[0]} <= NUMERIC for a, b in zip(self.parameters[:count], other.parameters))

    def require_one_more(self):
        at = self.least()
        kind, name, _ = self.parameters[at]
        self.parameters[at] = kind, name, None

    def checks(self):
        """Conditions on the sizes of the images."""
        fixed = REQUIRED_SIZE.get(self.operation)
        if fixed:
            sized = "src" if fixed[0] == "dst" else "dst"
            return [f"has_size({sized}, {fixed[1]})"]
        if not self.images or not any(each.role in SIZES for each in self.c_parameters):
            return []
        region = self.region()
        others = [role for role in self.images if role != region and not self.is_free(role)]
        return [f"{'fits' if role in OPTIONAL else 'same'}({role}, {region})" for role in others]

    def result(self):
        """(type of the result, declaration of what is written, arguments) or None"""
        if not self.outputs:
            return None
        kinds = [f"Pixel<{kind}, {length}>" if length else kind for _, kind, length in self.outputs]
        roles = tuple(role for role, _, _ in self.outputs)
        if len(roles) == 1:
            struct, members = kinds[0], [""]
        else:
            name, members = RESULTS[roles]
            struct = f"{name}<{', '.join(dict.fromkeys(kinds)) if name == 'Extrema' else ', '.join(kinds[:2])}>"
        places = [f"result{'.' * bool(member)}{member}" for member in members]
        return struct, [f"{place}.data()" if length else f"&{place}"
                        for place, (_, _, length) in zip(places, self.outputs)]

    def signature(self):
        return ", ".join(f"{kind} {name}" + (f" = {default}" if default is not None else "")
                         for kind, name, default in self.parameters)

    def c_call(self):
        places = iter(self.result()[1] if self.outputs else ())
        return f"{self.c_name}({', '.join(each or next(places) for each in self.passed)})"

    def definition(self):
        value = self.result()
        body = [f"  {value[0]} result{{}};\n"] if value else []
        checked = " && ".join(self.checks())
        call = self.c_call()
        if "buffer" in self.roles:
            body += self.buffer(checked)
            call = f"status < 0 ? status : !buffer.reserve(bytes) ? qvpStatusMemoryAllocation : {call}"
        elif checked:
            call = f"{checked} ? {call} : qvpStatusSize"
        body.append(f"  return finish({call}{', result' if value else ''});\n")
        returned = f"Result<{value[0]}>" if value else "Status"
        return f"inline {returned} {self.cpp_name}({self.signature()}) {{\n{''.join(body)}}}\n"

    def buffer(self, checked):
        """Statements that ask how large the buffer must be."""
        query = query_of(self.operation, self.exported)
        arguments = ", ".join(self.asked(Parameter(each, self.operation)) for each in self.exported[query])
        ask = f"{query}({arguments})"
        return ["  int bytes = 0;\n",
                f"  const QvpStatus status = {f'{checked} ? {ask} : qvpStatusSize' if checked else ask};\n"]

    def asked(self, each):
        """The argument of a query, which is one of the call's."""
        if each.role == "data_type":
            return f"qvp{re.match(TYPE, self.type)[0]}"
        if each.role == "num_channels":
            return self.layout_of(self.images[0]).replace("AC", "")
        if each.is_pointer:
            return "&bytes"
        own = next((i for i, known in enumerate(self.c_parameters) if known.role == each.role), None)
        return self.passed[own] if own is not None else f"{self.image_for(each.role)}.size()"

    def check(self, number):
        """For the tests: a function that calls this form by its public name, in full and as short as can be."""
        names = [name for _, name, _ in self.parameters]
        signature = ", ".join(f"{kind} {name}" for kind, name, _ in self.parameters)
        short = ", ".join(names[:self.least()])
        extra = f"  (void)qvp::{self.cpp_name}({short});\n" if self.least() < len(names) else ""
        return (f"void check{number}({signature}) {{\n  (void)qvp::{self.cpp_name}({', '.join(names)});\n{extra}}}\n")


NUMERIC = {"int", "double", *(f"Qvp{name}" for name in TYPE.split("|") if name != "32fc")}


class Call(Form):
    """What takes a record, for the class that owns it: images are views, and all else is what it is in C."""

    def value(self, each):
        self.parameters.append((re.sub(r"\*\[\]$", "*", each.kind), each.role, None))
        return each.role

    def put_in_order(self):
        pass

    def definition(self):
        tag = [] if self.images else [f"Of<Qvp{self.type}>"]
        given = [f"{kind} {name}" for kind, name, _ in self.parameters]
        checked = " && ".join(self.checks())
        call = f"{checked} ? {self.c_call()} : qvpStatusSize" if checked else self.c_call()
        name = CALLS.get(self.operation) or snake(self.operation)
        return f"inline QvpStatus {name}({', '.join(tag + given)}) {{ return {call}; }}\n"

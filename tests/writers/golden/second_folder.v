//==== out/mgra4.v ====
//stage HELD=1 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mgra4
	( 
	d,
	en,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	input   en;
	output   [3:0]  q;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_off
`endif
	tri1   en;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_on
`endif

	wire  [3:0]  keep;

	assign
		keep = 4'b1110,
		q = ((d & keep) ^ {4{en}});
endmodule //mgra4
//VALID FILE
//==== out/mgsa4.v ====
//stage HELD=2 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mgsa4
	( 
	d,
	en,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	input   en;
	output   [3:0]  q;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_off
`endif
	tri1   en;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_on
`endif

	wire  [3:0]  keep;

	assign
		keep = 4'b1101,
		q = ((d & keep) ^ {4{en}});
endmodule //mgsa4
//VALID FILE
//==== out/top.v ====
//top LBX_SINGLE_OUTPUT_FILE="OFF" d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_s1_q;
	wire  [3:0]   wire_s2_q;

	mgra4   s1
	( 
	.d(d),
	.en(1'b1),
	.q(wire_s1_q));
	mgsa4   s2
	( 
	.d(wire_s1_q),
	.en(1'b1),
	.q(wire_s2_q));
	assign
		q = wire_s2_q;
endmodule //top
//VALID FILE
//==== taken/mgpa4.tdf ====
-- the first stage would have this name
//==== taken/mgqa4.vhd ====
-- the second one, or the first with the next number

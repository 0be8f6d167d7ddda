//==== mgpa4.v ====
//stage HELD=1 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mgpa4
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
endmodule //mgpa4
//VALID FILE
//==== mgqa4.v ====
//stage HELD=2 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mgqa4
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
endmodule //mgqa4
//VALID FILE
//==== mgra4.v ====
//stage HELD=3 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
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
		keep = 4'b1100,
		q = ((d & keep) ^ {4{en}});
endmodule //mgra4
//VALID FILE
//==== mguv3.v ====
//pair HELD=1 LBX_SINGLE_OUTPUT_FILE="OFF" d q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mguv3
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_s1_q;
	wire  [3:0]   wire_s2_q;

	mgpa4   s1
	( 
	.d(d),
	.en(1'b1),
	.q(wire_s1_q));
	mgqa4   s2
	( 
	.d(wire_s1_q),
	.en(1'b1),
	.q(wire_s2_q));
	assign
		q = wire_s2_q;
endmodule //mguv3
//VALID FILE
//==== mgvv3.v ====
//pair HELD=2 LBX_SINGLE_OUTPUT_FILE="OFF" d q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mgvv3
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_s1_q;
	wire  [3:0]   wire_s2_q;

	mgqa4   s1
	( 
	.d(d),
	.en(1'b1),
	.q(wire_s1_q));
	mgra4   s2
	( 
	.d(wire_s1_q),
	.en(1'b1),
	.q(wire_s2_q));
	assign
		q = wire_s2_q;
endmodule //mgvv3
//VALID FILE
//==== top.v ====
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

	wire  [3:0]   wire_p1_q;
	wire  [3:0]   wire_p2_q;

	mguv3   p1
	( 
	.d(d),
	.q(wire_p1_q));
	mgvv3   p2
	( 
	.d(wire_p1_q),
	.q(wire_p2_q));
	assign
		q = wire_p2_q;
endmodule //top
//VALID FILE

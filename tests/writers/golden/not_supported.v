//==== mg634.v ====
//stage HELD=1 LBX_SINGLE_OUTPUT_FILE="OFF" d q
//


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  mg634
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire en;
	wire  [3:0]  keep;

	assign
		en = 1'b1,
		keep = 4'b1110,
		q = ((d & keep) ^ {4{en}});
endmodule //mg634
//VALID FILE
//==== top.v ====
//top LBX_SINGLE_OUTPUT_FILE="OFF" d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)



//synthesis_resources = box 1 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_u1_q;
	wire  [3:0]   wire_u2_q;

	box   u1
	( 
	.d(d),
	.q(wire_u1_q));
	defparam
		u1.depth = 3,
		u1.lpm_type = "box";
	mg634   u2
	( 
	.d(wire_u1_q),
	.q(wire_u2_q));
	assign
		q = wire_u2_q;
endmodule //top
//VALID FILE

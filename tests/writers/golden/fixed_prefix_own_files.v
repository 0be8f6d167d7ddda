//==== top.v ====
//top LBX_SINGLE_OUTPUT_FILE="OFF" d
//
//LBXI_INSTANCE_NAME="inst"
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
	wire  [3:0]   wire_s3_q;
	wire  [3:0]   wire_s4_q;

	top_pre_mg   s1
	( 
	.d(d),
	.en(1'b1),
	.q(wire_s1_q));
	top_pre_mg1   s2
	( 
	.d(wire_s1_q),
	.en(1'b1),
	.q(wire_s2_q));
	top_pre_mg   s3
	( 
	.d(wire_s2_q),
	.en(1'b1),
	.q(wire_s3_q));
	top_pre_mg2   s4
	( 
	.d(wire_s3_q),
	.en(1'b1),
	.q(wire_s4_q));
	assign
		q = wire_s4_q;
endmodule //top
//VALID FILE
//==== top_pre_mg.v ====
//stage HELD=1 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
//
//LBXI_INSTANCE_NAME="inst"


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_pre_mg
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
endmodule //top_pre_mg
//VALID FILE
//==== top_pre_mg1.v ====
//stage HELD=2 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
//
//LBXI_INSTANCE_NAME="inst"


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_pre_mg1
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
endmodule //top_pre_mg1
//VALID FILE
//==== top_pre_mg2.v ====
//stage HELD=3 LBX_SINGLE_OUTPUT_FILE="OFF" d en q
//
//LBXI_INSTANCE_NAME="inst"


// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_pre_mg2
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
endmodule //top_pre_mg2
//VALID FILE
